// CPropertySheet: making the window, modal and modeless.
#include <afxdlgs.h>

#include "../dlg/modalrun.h"
#include "../wnd/wndflags.h"

#include <detail/pending.h>

namespace
{

/// The style of a dialog template in memory, of either form.
class TemplateStyle
{
public:
    explicit TemplateStyle(WORD* words)
        : m_words(words)
        , m_extended(words[0] == 1 && words[1] == 0xFFFF)
    {
    }

    void change(DWORD removed, DWORD added, DWORD addedEx)
    {
        const int style = m_extended ? 6 : 0;
        const int exStyle = m_extended ? 4 : 2;
        write(style, (read(style) & ~removed) | added);
        write(exStyle, read(exStyle) | addedEx);
    }

private:
    DWORD read(int at) const { return static_cast<DWORD>(MAKELONG(m_words[at], m_words[at + 1])); }
    void write(int at, DWORD value)
    {
        m_words[at] = LOWORD(value);
        m_words[at + 1] = HIWORD(value);
    }

    WORD* m_words;
    bool m_extended;
};

// The bits that say what follows in the template itself stay.
constexpr DWORD kFontStyle = DS_SETFONT | DS_FIXEDSYS;

} // namespace

/// How a window is to be made.
struct CPropertySheet::Creation
{
    CPropertySheet& sheet;
    HWND owner;
    DWORD removed = 0; ///< style bits that the system's template gives
    DWORD added = 0;
    DWORD addedEx = 0;

    /// The one under way on this thread, until the system asks for the template.
    inline static thread_local const Creation* current = nullptr;
};

int CALLBACK CPropertySheet::callback(HWND wnd, UINT message, LPARAM lParam)
{
    const auto* sheet = dynamic_cast<CPropertySheet*>(FromHandlePermanent(wnd));
    if (message == PSCB_PRECREATE && Creation::current) {
        const Creation& creation = *std::exchange(Creation::current, nullptr);
        sheet = &creation.sheet;
        TemplateStyle(reinterpret_cast<WORD*>(lParam))
            .change(creation.removed, creation.added, creation.addedEx);
    }
    const bool hostListens = sheet && (sheet->m_psh.dwFlags & PSH_USECALLBACK) && sheet->m_psh.pfnCallback;
    return hostListens ? sheet->m_psh.pfnCallback(wnd, message, lParam) : 0;
}

/// Null when the window is not made, or did not outlive its initialisation: this object may then be gone.
HWND CPropertySheet::createWindow(const Creation& creation)
{
    std::vector<HPROPSHEETPAGE> handles;
    if (!createHandles(handles))
        return nullptr;
    PROPSHEETHEADER header = m_psh;
    header.dwSize = sizeof header;
    header.dwFlags = (header.dwFlags & ~PSH_PROPSHEETPAGE) | PSH_MODELESS | PSH_USECALLBACK;
    header.pfnCallback = &callback;
    header.hwndParent = creation.owner;
    header.nPages = static_cast<UINT>(handles.size());
    header.phpage = handles.data();
    if (!header.hInstance)
        header.hInstance = AfxGetResourceHandle();

    afxdetail::CallOut making;
    struct Outer
    {
        ~Outer() { Creation::current = before; }
        const Creation* before;
    } const outer{std::exchange(Creation::current, &creation)};
    AfxHookWindowCreate(this);
    const INT_PTR made = ::PropertySheetW(&header);
    if (AfxUnhookWindowCreate())
        PostNcDestroy(); // no window came to be, so no message ended it
    // A window's number may be negative: it has 32 bits, and their sign goes on.
    const HWND wnd = made != -1 ? reinterpret_cast<HWND>(made) : nullptr;
    const bool complete = wnd && ::IsWindow(wnd) && !making.failed();
    if (!complete && wnd && ::IsWindow(wnd))
        ::DestroyWindow(wnd);
    making.finish();
    return complete ? wnd : nullptr;
}

/// False when there is no page, or no template for one.
bool CPropertySheet::createHandles(std::vector<HPROPSHEETPAGE>& handles) const
{
    for (CPropertyPage* const page : m_pages) {
        const HPROPSHEETPAGE handle = page->createHandle();
        if (!handle) {
            for (const HPROPSHEETPAGE made : handles)
                ::DestroyPropertySheetPage(made);
            return false;
        }
        handles.push_back(handle);
    }
    return !handles.empty();
}

BOOL CPropertySheet::Create(CWnd* parent, DWORD style, DWORD exStyle)
{
    constexpr DWORD kDefault =
        WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE;
    if (style == static_cast<DWORD>(-1))
        style = kDefault;
    const Creation creation{*this, parent->GetSafeHwnd(), ~kFontStyle, style & ~kFontStyle,
                            exStyle ? exStyle : WS_EX_DLGMODALFRAME};
    return createWindow(creation) != nullptr;
}

INT_PTR CPropertySheet::DoModal()
{
    HWND topLevel = nullptr;
    const HWND owner = GetSafeOwner(m_parent, &topLevel)->GetSafeHwnd();
    if (topLevel)
        ::EnableWindow(topLevel, FALSE);
    struct Undo
    {
        HWND wnd;
        ~Undo()
        {
            if (wnd)
                ::EnableWindow(wnd, TRUE);
        }
    } const undo{topLevel};
    return runModal(owner);
}

/// The sheet is modeless to the system. So its messages pass through the framework's loop, as those of a
/// CDialog do.
INT_PTR CPropertySheet::runModal(HWND owner)
{
    afxdetail::ModalRun run(*this, owner);
    m_nModalResult = -1;
    if (!createWindow({*this, owner, WS_VISIBLE}))
        return m_nModalResult;
    if (ContinueModal())
        RunModalLoop(MLF_SHOWONIDLE);
    run.finish();
    return m_nModalResult;
}

void CPropertySheet::EndDialog(int result)
{
    if (isModal())
        EndModalLoop(result);
}

bool CPropertySheet::isModal() const
{
    return (m_nFlags & (afxdetail::kModalLoop | afxdetail::kContinueModal)) != 0;
}
