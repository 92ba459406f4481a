#include <ovoui/tree/CheckBoxConcern.h>

#include <ovoui/tree/HostCalls.h>
#include <ovoui/tree/ItemTracker.h>

#include <ovoui/frame/ThemeData.h>

#include <vssym32.h>

#include <algorithm>

using Check = MultiTreeCtrl::Checkable::Check;

namespace
{

/// The images in the order of Check. The first is never shown: no image has the number 0.
constexpr int kImages = 4;

int themeState(int image)
{
    constexpr int kStates[kImages] = {CBS_UNCHECKEDNORMAL, CBS_UNCHECKEDNORMAL, CBS_CHECKEDNORMAL,
                                      CBS_MIXEDNORMAL};
    return kStates[image];
}

UINT frameState(int image)
{
    constexpr UINT kStates[kImages] = {DFCS_BUTTONCHECK, DFCS_BUTTONCHECK, DFCS_BUTTONCHECK | DFCS_CHECKED,
                                       DFCS_BUTTON3STATE | DFCS_CHECKED};
    return kStates[image] | DFCS_FLAT;
}

/// The check box of the visual style where there is one, else the classic one.
void paintBox(CDC& dc, CRect rect, HWND window, int image)
{
    if (!CThemeData::getThemeData().drawCheckBox(dc.GetSafeHdc(), &rect, window, themeState(image)))
        ::DrawFrameControl(dc.GetSafeHdc(), &rect, DFC_BUTTON, frameState(image));
}

} // namespace

MultiTreeCtrl::Checkable::~Checkable() = default;

// What is shown

MultiTreeCtrl::Checkable* MultiTreeCtrl::CheckBoxConcern::checkable(const Node* node)
{
    return dynamic_cast<Checkable*>(const_cast<Node*>(node));
}

bool MultiTreeCtrl::CheckBoxConcern::has(HTREEITEM item) const
{
    return m_on && item && (view().stateOf(item) & TVIS_STATEIMAGEMASK) && checkable(view().node(item).get());
}

TVITEM MultiTreeCtrl::CheckBoxConcern::stateImage(const Node& node) const
{
    TVITEM image{};
    if (!m_on)
        return image;
    const Checkable* const box = checkable(&node);
    image.state = INDEXTOSTATEIMAGEMASK(static_cast<UINT>(box ? box->check() : Check::None));
    image.stateMask = TVIS_STATEIMAGEMASK;
    return image;
}

void MultiTreeCtrl::CheckBoxConcern::extrasChange()
{
    const bool on = (m_state.extras & CheckBoxes) != 0;
    if (on == m_on)
        return;
    m_on = on;
    if (!m_state.usable())
        return;
    const HostCalls host(tree());
    if (on) {
        takeImages();
    } else {
        setStateImages(m_hostsImages);
        m_images.DeleteImageList();
    }
    if (host.usable())
        showAll();
}

void MultiTreeCtrl::CheckBoxConcern::windowMade()
{
    if (m_on)
        takeImages();
}

/// Puts the boxes in the place of the state images that are there. Those are the host's, unless the boxes
/// have stayed in a window that was let go of.
void MultiTreeCtrl::CheckBoxConcern::takeImages()
{
    const auto there = reinterpret_cast<HIMAGELIST>(tree().SendMessage(TVM_GETIMAGELIST, TVSIL_STATE));
    if (!there || there != m_images.GetSafeHandle())
        m_hostsImages = there;
    if (m_state.usable())
        makeImages();
}

/// By a message, which the host may hear: while a window is being taken over, its own procedure is not known
/// yet.
void MultiTreeCtrl::CheckBoxConcern::setStateImages(HIMAGELIST images) const
{
    tree().SendMessage(TVM_SETIMAGELIST, TVSIL_STATE, reinterpret_cast<LPARAM>(images));
}

/// Of the size of the check boxes in menus, which goes by the font of menus, as far as the rows have room.
void MultiTreeCtrl::CheckBoxConcern::makeImages()
{
    const int size = std::min(::GetSystemMetrics(SM_CXMENUCHECK), static_cast<int>(tree().GetItemHeight()));
    CImageList images;
    images.Create(size, size, ILC_COLOR24, kImages, 0);
    CClientDC screen(&tree());
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    CBitmap strip;
    strip.CreateCompatibleBitmap(&screen, kImages * size, size);
    CBitmap* const before = memory.SelectObject(&strip);
    memory.FillSolidRect(0, 0, kImages * size, size, ::GetSysColor(COLOR_WINDOW));
    for (int image = 0; image < kImages; ++image)
        paintBox(memory, CRect(image * size, 0, (image + 1) * size, size), tree().m_hWnd, image);
    memory.SelectObject(before);
    images.Add(&strip, static_cast<CBitmap*>(nullptr));
    setStateImages(images.m_hImageList);
    m_images.DeleteImageList();
    m_images.Attach(images.Detach());
}

void MultiTreeCtrl::CheckBoxConcern::showAll()
{
    const HostCalls host(tree());
    std::vector<HTREEITEM> items;
    for (HTREEITEM item = view().first(); item; item = view().nextItem(item, true))
        items.push_back(item);
    ItemList(shared(), std::move(items)).forEach([&](HTREEITEM item) {
        if (host.usable())
            show(item);
    });
}

/// Without boxes a state image goes that was one of ours.
void MultiTreeCtrl::CheckBoxConcern::show(HTREEITEM item) const
{
    const HostCalls host(tree());
    const Tracker shown(shared(), item);
    const OVO::Handle<Node> node = view().node(item);
    if (!node || !checkable(node.get()))
        return;
    const TVITEM image = stateImage(*node);
    if (host.usable() && shown)
        view().setState(item, image.state, TVIS_STATEIMAGEMASK);
}

void MultiTreeCtrl::CheckBoxConcern::ends(const Message& message, LRESULT)
{
    const bool looks = message.id == WM_THEMECHANGED || message.id == WM_SYSCOLORCHANGE;
    if (looks && m_on && m_state.usable())
        makeImages();
}

// What the user does

void MultiTreeCtrl::CheckBoxConcern::toggle(HTREEITEM item)
{
    if (!has(item))
        return;
    const HostCalls host(tree());
    const Tracker clicked(shared(), item);
    const std::optional<bool> on = wanted(item);
    if (on && host.usable() && clicked)
        set({clicked.item()}, *on);
}

void MultiTreeCtrl::CheckBoxConcern::toggleCaret()
{
    const HostCalls host(tree());
    const Tracker caret(shared(), view().caret());
    if (!has(caret.item()))
        return;
    const std::optional<bool> on = wanted(caret.item());
    if (!on || !host.usable() || !caret)
        return;
    if (view().isSelected(caret.item()))
        set(m_state.selectedItems(), *on);
    else
        set({caret.item()}, *on);
}

/// A mixed box becomes checked.
std::optional<bool> MultiTreeCtrl::CheckBoxConcern::wanted(HTREEITEM item) const
{
    std::optional<bool> on;
    HostCalls(tree()).report([&] {
        const OVO::Handle<Node> node = view().node(item);
        on = checkable(node.get())->check() != Check::On;
    });
    return on;
}

void MultiTreeCtrl::CheckBoxConcern::set(const std::vector<HTREEITEM>& items, bool on)
{
    const HostCalls host(tree());
    ItemList(shared(), items).forEach([&](HTREEITEM item) {
        if (!host.usable() || !has(item))
            return;
        const Tracker changed(shared(), item);
        const OVO::Handle<Node> node = view().node(item);
        host.report([&] { checkable(node.get())->setCheck(tree(), on); });
        if (host.usable() && changed)
            host.report([&] { show(item); });
    });
}

// What the state asks for

template <>
std::shared_ptr<MultiTreeCtrl::CheckBoxConcern> MultiTreeCtrl::State::make()
{
    return std::make_shared<CheckBoxConcern>(*this);
}

bool MultiTreeCtrl::State::hasCheckBox(HTREEITEM item) const
{
    return checkBoxes->has(item);
}

void MultiTreeCtrl::State::toggleCheck(HTREEITEM item)
{
    checkBoxes->toggle(item);
}

void MultiTreeCtrl::State::toggleCaretsCheck()
{
    checkBoxes->toggleCaret();
}
