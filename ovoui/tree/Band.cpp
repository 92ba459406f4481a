#include <ovoui/tree/Band.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/MouseWait.h>
#include <ovoui/tree/QueuedMouse.h>
#include <ovoui/tree/Selection.h>
#include <ovoui/tree/core/ItemSets.h>

#include <algorithm>
#include <cstdlib>

using namespace ovoui::tree;

namespace
{

constexpr ULONGLONG kScrollInterval = 50; // milliseconds

} // namespace

/// A band, from the press on.
struct MultiTreeCtrl::Band::Drawing
{
    Drawing(const std::shared_ptr<State>& state, CPoint press, const ScrolledBy& scrolled, HTREEITEM row,
            bool ctrlHeld)
        : begin{press.x + scrolled.x, press.y + scrolled.y}
        , pointer(press)
        , firstRow(state, row)
        , fromRow(row != nullptr)
        , ctrl(ctrlHeld)
        , before(state, setOf(state->selectedItems()))
        , caretBefore(state, state->view.caret())
    {
    }

    const ContentPoint begin;
    CPoint pointer;
    const Tracker firstRow; ///< where it began
    const bool fromRow;     ///< not on the empty space below all
    const bool ctrl;
    const ItemList before; ///< what was selected
    const Tracker caretBefore;
};

void MultiTreeCtrl::Band::select(CPoint press, bool ctrl)
{
    const HostCalls host(tree());
    Drawing drawing(shared(), press, scrolledBy(), rowAt(press), ctrl);
    const bool done = follow(drawing);
    if (!host.usable())
        return;
    setFrame(std::nullopt);
    if (done)
        finish(drawing);
    else
        m_state.selection->become(drawing.before);
}

/// False when the band is given up, or the tree is gone.
bool MultiTreeCtrl::Band::follow(Drawing& drawing)
{
    const HostCalls host(tree());
    const MouseWait wait(tree().m_hWnd);
    ULONGLONG tick = ::GetTickCount64() + kScrollInterval;
    while (host.usable() && wait.holdsMouse()) {
        MSG message;
        const MouseWait::Event event = wait.next(message, tick);
        if (event == MouseWait::Event::Lost)
            return false;
        if (event == MouseWait::Event::Time) {
            tick = ::GetTickCount64() + kScrollInterval;
            scroll(drawing);
            continue;
        }
        const BandStep step = bandStep(queuedMouse(message));
        switch (step) {
        case BandStep::GiveUp:
            return false;
        case BandStep::Ignore:
            break;
        case BandStep::Show:
        case BandStep::Finish:
            drawing.pointer = CPoint(message.lParam);
            show(drawing, drawing.pointer);
            if (step == BandStep::Finish)
                return host.usable();
            break;
        case BandStep::PassOn:
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
    }
    return false;
}

void MultiTreeCtrl::Band::show(Drawing& drawing, CPoint pointer)
{
    const HostCalls host(tree());
    m_state.selection->become(ItemList(shared(), wantedBy(drawing, rowAt(pointer))));
    if (!host.usable())
        return;
    const ScrolledBy scrolled = scrolledBy();
    const auto box = bandFrame(drawing.begin, {pointer.x + scrolled.x, pointer.y + scrolled.y}, scrolled);
    setFrame(CRect(box.left, box.top, box.right, box.bottom));
}

/// What is selected when the pointer is at a row, or, without one, below the last.
std::vector<HTREEITEM> MultiTreeCtrl::Band::wantedBy(const Drawing& drawing, HTREEITEM row) const
{
    const bool knowsBegin = drawing.firstRow || !drawing.fromRow; // else its row has gone
    const std::vector<HTREEITEM> touched =
        knowsBegin ? setOf(m_state.selection->displayedRange(drawing.firstRow.item(), row))
                   : std::vector<HTREEITEM>();
    return bandSelection(drawing.before.items(), touched, drawing.ctrl,
                         [&](HTREEITEM item) { return drawing.before.isGone(item); });
}

/// Beside the tree the pointer scrolls it. The frame is taken away before, or its picture would move along.
void MultiTreeCtrl::Band::scroll(Drawing& drawing)
{
    CRect client;
    tree().GetClientRect(&client);
    const int rows =
        rowsToScroll(drawing.pointer.y, client.Height(), static_cast<int>(tree().GetItemHeight()));
    if (rows == 0)
        return;
    const HostCalls host(tree());
    setFrame(std::nullopt);
    tree().UpdateWindow();
    for (int i = 0; i < std::abs(rows) && host.usable(); ++i)
        tree().SendMessage(WM_VSCROLL, rows < 0 ? SB_LINEUP : SB_LINEDOWN);
    if (host.usable())
        show(drawing, drawing.pointer);
}

/// The caret goes to the row at the pointer, the anchor to that where the band began.
void MultiTreeCtrl::Band::finish(const Drawing& drawing)
{
    const HostCalls host(tree());
    const HTREEITEM row = rowAt(drawing.pointer);
    const Tracker end(shared(), row ? row : drawing.firstRow ? view().getLastItem() : nullptr);
    if (!end)
        return;
    tree().m_anchor = drawing.firstRow ? drawing.firstRow.item() : view().getLastItem();
    m_state.selection->keepWhile([&] { view().setCaret(end.item()); });
    if (host.usable())
        tree().notifyTvnSelchanged(TVC_BYMOUSE, drawing.caretBefore.item(), view().caret(), drawing.pointer);
}

// The frame

ScrolledBy MultiTreeCtrl::Band::scrolledBy() const
{
    const int rows = tree().GetScrollPos(SB_VERT);
    return {tree().GetScrollPos(SB_HORZ), rows * static_cast<int>(tree().GetItemHeight())};
}

/// The row at the height of a point, which may lie beside the tree; null below the last.
HTREEITEM MultiTreeCtrl::Band::rowAt(CPoint point) const
{
    CRect client;
    tree().GetClientRect(&client);
    TVHITTESTINFO hit{};
    hit.pt.x = std::clamp<LONG>(point.x, 0, std::max<LONG>(client.right - 1, 0));
    hit.pt.y = std::clamp<LONG>(point.y, 0, std::max<LONG>(client.bottom - 1, 0));
    const auto row = reinterpret_cast<HTREEITEM>(view().ask(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    return row && view().isDoomed(row) ? nullptr : row;
}

void MultiTreeCtrl::Band::setFrame(const std::optional<CRect>& frame)
{
    if (frame == m_frame)
        return;
    for (const std::optional<CRect>& each : {m_frame, frame})
        if (each)
            invalidate(*each);
    m_frame = frame;
    tree().UpdateWindow();
}

/// The lines alone: what is between them need not be painted.
void MultiTreeCtrl::Band::invalidate(const CRect& frame) const
{
    const CRect sides[] = {{frame.left, frame.top, frame.left + 1, frame.bottom},
                           {frame.right - 1, frame.top, frame.right, frame.bottom},
                           {frame.left, frame.top, frame.right, frame.top + 1},
                           {frame.left, frame.bottom - 1, frame.right, frame.bottom}};
    for (const CRect& side : sides)
        tree().InvalidateRect(&side, TRUE);
}

/// What the tree view has painted has lost the frame.
void MultiTreeCtrl::Band::ends(const Message& message, LRESULT)
{
    if (message.id != WM_PAINT || !m_frame || !m_state.usable())
        return;
    CClientDC dc(&tree());
    ::FrameRect(dc.GetSafeHdc(), &*m_frame, ::GetSysColorBrush(COLOR_HIGHLIGHT));
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::Band> MultiTreeCtrl::State::make()
{
    return std::make_shared<Band>(*this);
}

void MultiTreeCtrl::State::selectByBand(CPoint press, bool ctrl)
{
    band->select(press, ctrl);
}
