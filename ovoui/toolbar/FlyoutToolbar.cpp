// CFlyoutToolbar: the window and its entries. What follows the pointer is in FlyoutTracking.cpp.
#include <ovoui/toolbar/FlyoutToolbar.h>

#include <ovoui/frame/BoxRect.h>
#include <ovoui/frame/Geometry.h>
#include <ovoui/toolbar/AccessibleBar.h>
#include <ovoui/toolbar/BarButtons.h>
#include <ovoui/toolbar/ButtonUpdate.h>
#include <ovoui/toolbar/FlyoutTip.h>
#include <ovoui/toolbar/ImageStrip.h>
#include <ovoui/toolbar/VantorToolBar.h>
#include <ovoui/toolbar/core/ButtonRules.h>
#include <ovoui/toolbar/core/FlyoutEntries.h>
#include <ovoui/toolbar/core/FlyoutPlacement.h>
#include <ovoui/toolbar/core/FlyoutRecords.h>

using namespace ovoui::toolbar;

IMPLEMENT_DYNAMIC(CFlyoutToolbar, CToolBar)

BEGIN_MESSAGE_MAP(CFlyoutToolbar, CToolBar)
    ON_WM_CREATE()
    ON_WM_TIMER()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

namespace
{

constexpr wchar_t kClass[] = L"OvoFlyoutToolbar";
constexpr int kSeparatorWidth = 8;

/// A toolbar control with a shadow, where the system has shadows.
LPCWSTR windowClass()
{
    WNDCLASSW cls{};
    if (!::GetClassInfoW(nullptr, TOOLBARCLASSNAMEW, &cls))
        return TOOLBARCLASSNAMEW;
    cls.style = (cls.style & ~static_cast<UINT>(CS_GLOBALCLASS)) | CS_DROPSHADOW;
    cls.hInstance = AfxGetInstanceHandle();
    cls.lpszClassName = kClass;
    return AfxRegisterClass(&cls) ? kClass : TOOLBARCLASSNAMEW;
}

TBBUTTON separator()
{
    TBBUTTON button{};
    button.iBitmap = kSeparatorWidth;
    button.fsStyle = TBSTYLE_SEP;
    button.fsState = TBSTATE_ENABLED;
    button.iString = -1;
    return button;
}

TBBUTTON commandButton(int command, int image)
{
    TBBUTTON button{};
    button.iBitmap = image;
    button.idCommand = command;
    button.fsStyle = TBSTYLE_BUTTON;
    button.fsState = TBSTATE_ENABLED;
    button.iString = -1;
    return button;
}

} // namespace

CFlyoutToolbar::CFlyoutToolbar()
    : m_tipDelay(::GetDoubleClickTime()) // as the platform's tooltips have it
    , m_nextTipDelay(m_tipDelay / 5)
    , m_tipTime(m_tipDelay * 10)
{
}

CFlyoutToolbar::~CFlyoutToolbar()
{
    ::DestroyWindow(m_hWnd);
}

bool CFlyoutToolbar::create(CVantorToolBar& bar, const FlyoutRecord& record, bool horizontal)
{
    SetBorders(1, 1, 1, 1);
    SetBarStyle(CBRS_BORDER_ANY | (horizontal ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT) |
                (record.captioned ? CBRS_GRIPPER : 0));
    m_mirrored = (bar.GetExStyle() & WS_EX_LAYOUTRTL) != 0;
    const DWORD exStyle = WS_EX_TOOLWINDOW | (m_mirrored ? WS_EX_LAYOUTRTL : 0);
    constexpr DWORD kStyle =
        WS_POPUP | TBSTYLE_FLAT | CCS_NOPARENTALIGN | CCS_NOMOVEY | CCS_NODIVIDER | CCS_NORESIZE;
    const HWND owner = bar.commandTarget();
    if (!CWnd::CreateEx(exStyle, windowClass(), nullptr, kStyle, 0, 0, 0, 0, owner, nullptr))
        return false;
    SetOwner(CWnd::FromHandle(owner));
    m_frame = bar.promptFrame();

    SendMessage(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    SendMessage(TB_SETPARENT, reinterpret_cast<WPARAM>(m_hWnd)); // the owner knows nothing of this control
    if (!(record.fromResource() ? fillFromResource(record) : fillFromCommands(record)))
        return false;
    SendMessage(TB_SETBUTTONSIZE, 0, bar.SendMessage(TB_GETBUTTONSIZE));
    return !m_entries.empty();
}

// Entries

bool CFlyoutToolbar::fillFromResource(const FlyoutRecord& record)
{
    if (!LoadToolBar(static_cast<UINT>(record.toolbarId)))
        return false;
    std::vector<TBBUTTON> all;
    while (SendMessage(TB_BUTTONCOUNT) > 0) {
        all.push_back(buttonAt(0));
        SendMessage(TB_DELETEBUTTON, 0);
    }
    std::vector<TBBUTTON> entries;
    for (const ResourceEntry& entry : entriesOfResource(record, static_cast<int>(all.size()))) {
        entries.push_back(all[static_cast<std::size_t>(entry.button)]);
        m_entries.push_back(entry.entry);
    }
    addEntries(entries);
    return true;
}

bool CFlyoutToolbar::fillFromCommands(const FlyoutRecord& record)
{
    SendMessage(TB_SETBITMAPSIZE, 0, MAKELPARAM(record.bitmapSize, record.bitmapSize));
    if (record.imageList) {
        SendMessage(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(record.imageList));
    } else {
        for (const int strip : stripsOf(record))
            addStrip(m_hWnd, strip, record.bitmapSize);
    }
    std::vector<TBBUTTON> entries;
    for (const ListedEntry& entry : entriesOfList(record)) {
        m_entries.push_back(static_cast<int>(entries.size()));
        m_names.push_back(entry.name);
        entries.push_back(entry.isSeparator() ? separator() : commandButton(entry.command, entry.image));
    }
    addEntries(entries);
    return true;
}

/// All at once: the control lays itself out after each message.
void CFlyoutToolbar::addEntries(const std::vector<TBBUTTON>& buttons)
{
    const bool added = !buttons.empty() &&
                       SendMessage(TB_ADDBUTTONS, buttons.size(), reinterpret_cast<LPARAM>(buttons.data()));
    if (!added)
        m_entries.clear();
}

int CFlyoutToolbar::entryOf(int command) const
{
    const int index = CommandToIndex(static_cast<UINT>(command));
    return index >= 0 && index < static_cast<int>(m_entries.size())
               ? m_entries[static_cast<std::size_t>(index)]
               : -1;
}

TBBUTTON CFlyoutToolbar::buttonAt(int index) const
{
    return buttonOf(m_hWnd, index);
}

// Place

void CFlyoutToolbar::placeAt(const CRect& button, bool horizontal)
{
    CRect inside(0, 0, 0, 0);
    CalcInsideRect(inside, horizontal);
    const CSize around(-inside.Width(), -inside.Height());
    const CRect area(GetWorkArea(button));
    breakRowsFor(area.Size() - around, horizontal);
    const CSize size = sizeOfEntries() + around;

    using namespace ovoui::frame;
    RECT place = toRect(flyoutPlace(toBox(button), size.cx, size.cy, horizontal, m_mirrored));
    EnsureRectVisible(place);
    SetWindowPos(nullptr, place.left, place.top, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CFlyoutToolbar::breakRowsFor(const CSize& room, bool horizontal)
{
    std::vector<RowItem> items;
    for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
        CRect rect;
        GetItemRect(i, &rect);
        RowItem item;
        item.width = rect.Width();
        item.separator = isSeparator(fieldsOf(m_hWnd, i));
        items.push_back(item);
    }
    breakFlyout(items,
                {.horizontal = horizontal,
                 .width = static_cast<int>(sizeOfEntries().cx),
                 .rowHeight = HIWORD(SendMessage(TB_GETBUTTONSIZE))},
                {static_cast<int>(room.cx), static_cast<int>(room.cy)});
    for (int i = 0; i < static_cast<int>(items.size()); ++i)
        if (items[static_cast<std::size_t>(i)].endsRow)
            SetButtonStyle(i, GetButtonStyle(i) | TBBS_WRAPPED);
}

CSize CFlyoutToolbar::sizeOfEntries() const
{
    CRect all(0, 0, 0, 0);
    for (int i = 0; i < static_cast<int>(m_entries.size()); ++i) {
        CRect rect;
        GetItemRect(i, &rect);
        all.UnionRect(all, rect);
    }
    return CSize(all.right, all.bottom);
}

// Life

/// The frame does not count it among its bars: a flyout takes no room and must cause no layout.
int CFlyoutToolbar::OnCreate(LPCREATESTRUCT cs)
{
    return CWnd::OnCreate(cs);
}

bool CFlyoutToolbar::showLater(UINT milliseconds)
{
    return SetTimer(kHoldTimer, milliseconds, nullptr) != 0;
}

void CFlyoutToolbar::show()
{
    const std::shared_ptr<CFlyoutToolbar> self = shared_from_this();
    OnUpdateCmdUI(nullptr, TRUE);
    if (!m_hWnd)
        return; // an update handler has closed it
    constexpr UINT kInPlace = SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE;
    SetWindowPos(&wndTop, 0, 0, 0, 0, kInPlace | SWP_SHOWWINDOW);
}

/// The owner need not be a frame: it is only asked as a command target.
void CFlyoutToolbar::OnUpdateCmdUI(CFrameWnd*, BOOL disableIfNoHandler)
{
    const std::shared_ptr<CFlyoutToolbar> self = weak_from_this().lock();
    if (CWnd* const owner = GetOwner())
        updateButtons(*this, *owner, disableIfNoHandler, [this] { return m_hWnd != nullptr; });
}

BOOL CFlyoutToolbar::DestroyWindow()
{
    if (!m_hWnd)
        return FALSE;
    if (m_hot >= 0)
        showPrompt(AFX_IDS_IDLEMESSAGE);
    return CToolBar::DestroyWindow();
}

/// A call into the host's code may close the flyout: it stays until the message is handled.
LRESULT CFlyoutToolbar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const std::shared_ptr<CFlyoutToolbar> self = weak_from_this().lock();
    if (message == pressMessage()) {
        onPressed(static_cast<int>(wParam));
        return 0;
    }
    switch (message) {
    case WM_NOTIFY:
        return 0;    // of this control itself
    case WM_COMMAND: // the control tells itself of a click, and must not be destroyed in the middle
        PostMessage(pressMessage(), static_cast<WPARAM>(clickedButton(LOWORD(wParam))));
        return 0;
    case WM_GETOBJECT:
        if (const LRESULT object = onGetObject(wParam, lParam))
            return object;
        break;
    }
    return CToolBar::WindowProc(message, wParam, lParam);
}

/// The control tells a command, which several entries may have.
int CFlyoutToolbar::clickedButton(int command) const
{
    const int under = buttonUnder(CPoint(static_cast<LPARAM>(::GetMessagePos())));
    return under != kNoEntry && buttonAt(under).idCommand == command
               ? under
               : CommandToIndex(static_cast<UINT>(command));
}

void CFlyoutToolbar::onPressed(int index)
{
    if (index >= 0 && index < static_cast<int>(m_entries.size()) && whenChosen)
        whenChosen(entryAt(index));
}

int CFlyoutToolbar::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}
