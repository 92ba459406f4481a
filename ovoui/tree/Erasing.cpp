#include <ovoui/tree/Erasing.h>

#include <ovoui/tree/Gesture.h>
#include <ovoui/tree/ParentNotificationFilter.h>

#include <ovoui/frame/MessageBox.h>
#include <ovoui/frame/Module.h>

#include <ovocor/Text.h>
#include <ovouires/resource.h>

// The control's handler and operation

void MultiTreeCtrl::eraseSelectedNodes()
{
    Erasing erasing(*this);
    erasing.finish(ovoui::frame::keeping([&] { erasing.run(); }));
}

/// The command: the whole is one gesture, and the parent hears of the new selection when it is over.
void MultiTreeCtrl::OnEditDelete()
{
    const HostCalls host(*this);
    Erasing erasing(*this);
    erasing.finish(
        ovoui::tree::asGesture(m_gestures, kGestureDelete, [&] { host.report([&] { erasing.run(); }); }));
}

// Erasing

/// Deleting counts as a drag without an effect: nodes are told of its beginning, and of its end however it
/// comes.
class MultiTreeCtrl::Erasing::Drag
{
public:
    Drag(MultiTreeCtrl& tree, const Nodes& nodes)
        : m_state(tree.m_state)
        , m_nodes(nodes)
    {
    }
    /// What nodes raise here is of no interest: another exception is on its way.
    ~Drag()
    {
        while (m_ended < m_started)
            ovoui::frame::dropping([this] { end(); });
    }
    Drag(const Drag&) = delete;
    Drag& operator=(const Drag&) = delete;

    void start()
    {
        for (; m_started < m_nodes.size() && m_state->usable(); ++m_started) {
            const DragCursorSet* cursors = nullptr;
            m_nodes[m_started]->dragStarting(*m_state->control(), 0, cursors);
        }
    }
    void endAll()
    {
        while (m_ended < m_started)
            end();
    }

private:
    void end()
    {
        const OVO::Handle<Node>& node = m_nodes[m_ended++];
        if (m_state->usable())
            node->dragEnding(*m_state->control(), 0);
    }

    const std::shared_ptr<State> m_state;
    const Nodes& m_nodes;
    std::size_t m_started = 0;
    std::size_t m_ended = 0;
};

void MultiTreeCtrl::Erasing::run()
{
    if (!m_host.usable())
        return;
    Nodes nodes = m_tree.m_state->selectedNodes();
    std::erase_if(nodes, [](const OVO::Handle<Node>& node) { return !node->canErase(); });
    if (nodes.empty() || !m_host.usable() || !isConfirmed(nodes) || !m_host.usable())
        return;
    m_begun = true;
    Drag drag(m_tree, nodes);
    drag.start();
    if (m_host.usable())
        erase(nodes);
    drag.endAll();
}

void MultiTreeCtrl::Erasing::finish(std::exception_ptr raised) const
{
    if (m_begun && m_host.usable())
        ovoui::frame::keepFirst(raised, [this] {
            m_tree.notifyTvnSelchanged(TVC_UNKNOWN, nullptr, m_tree.m_state->view.caret(), CPoint(0, 0));
        });
    ovoui::frame::raise(raised);
}

bool MultiTreeCtrl::Erasing::isConfirmed(const Nodes& nodes) const
{
    const std::wstring name = nodes.size() == 1 ? nodes.front()->text(m_tree) : std::wstring();
    if (!m_host.usable())
        return false;
    const std::wstring question =
        nodes.size() == 1
            ? stringPrintf(ovoui::resourceString(IDS_DELETE_ONE).c_str(), name.c_str())
            : stringPrintf(ovoui::resourceString(IDS_DELETE_MANY).c_str(), static_cast<int>(nodes.size()));
    const std::wstring caption = ovoui::resourceString(IDS_DELETE_CAPTION);
    return OVOMessageBox(m_tree.m_hWnd, question.c_str(), caption.c_str(), MB_YESNO | MB_ICONQUESTION,
                         L"MsgWindow", 0) == IDYES;
}

void MultiTreeCtrl::Erasing::erase(const Nodes& nodes) const
{
    for (const OVO::Handle<Node>& node : nodes) {
        if (!m_host.usable())
            return;
        const bool agreed = node->erase(m_tree);
        if (!m_host.usable() || !agreed || !node->hTreeItem())
            continue;
        // The caret may go from one deleted item to the next; the parent is told at the end.
        const ovoui::tree::ParentNotificationFilter quiet(m_tree.m_hWnd);
        m_tree.m_state->view.remove(node->hTreeItem());
    }
}
