#include <ovoui/files/FileDialogImp.h>

#include <ovoui/files/core/ClassicEvents.h>
#include <ovoui/frame/Exceptions.h>
#include <ovoui/frame/MenuBelow.h>

#include <ovocor/IntCast.h>

#include <utility>
#include <vector>

#pragma GCC diagnostic ignored "-Winvalid-offsetof" // the parts of a class are found by their offset

namespace
{

constexpr UINT kPostInit = 0x0E18; ///< also the number of the timer that sends it again
constexpr UINT_PTR kCancel = 0x0E19;

} // namespace

BEGIN_MESSAGE_MAP(COVOFileDialogImp, CFileDialog)
    ON_WM_HELPINFO()
    ON_WM_SIZE()
    ON_MESSAGE(kPostInit, &COVOFileDialogImp::OnPostInit)
END_MESSAGE_MAP()

BEGIN_INTERFACE_MAP(COVOFileDialogImp, CFileDialog)
INTERFACE_PART(COVOFileDialogImp, IID_IFileDialogControlEvents, ControlEvents)
END_INTERFACE_MAP()

COVOFileDialogImp::COVOFileDialogImp(BOOL open, LPCWSTR defaultExtension, LPCWSTR fileName, DWORD flags,
                                     LPCWSTR filter, CWnd* parent, BOOL vistaStyle)
    : CFileDialog(open, defaultExtension, fileName, flags, filter, parent, 0, vistaStyle)
{
}

IFileDialogCustomize* COVOFileDialogImp::customize([[maybe_unused]] const char* operation) const
{
    if (!m_pIFileDialogCustomize)
        TRACE("COVOFileDialog::%s is for the new-style dialog alone: ask IsVistaStyle first\n", operation);
    ASSERT(m_pIFileDialogCustomize);
    return m_pIFileDialogCustomize;
}

CString COVOFileDialogImp::labelOf(const CDialog& dialog, DWORD id)
{
    CString label;
    dialog.GetDlgItemText(static_cast<int>(id), label);
    return label;
}

INT_PTR COVOFileDialogImp::ask()
{
    m_kept = nullptr;
    if (!m_bVistaStyle)
        beginInFolder();
    const INT_PTR result = DoModal();
    ovoui::frame::raise(std::exchange(m_kept, nullptr));
    if (result == IDOK)
        keepFolder(); // the classic dialog alone has a name for it
    return result;
}

// The child dialog of the classic path

BOOL COVOFileDialogImp::OnInitDialog()
{
    CDialog::OnInitDialog();
    const BOOL result = m_owner->OnInitDialog();
    PostMessage(kPostInit);
    return result;
}

/// The system may let messages through before it shows the dialog; then this waits. The child itself may stay
/// hidden.
LRESULT COVOFileDialogImp::OnPostInit(WPARAM wParam, LPARAM lParam)
{
    if (!::IsWindowVisible(::GetAncestor(m_hWnd, GA_ROOT))) {
        ::SetTimer(m_hWnd, kPostInit, USER_TIMER_MINIMUM, &postAgain);
        return 0;
    }
    return m_owner->OnPostInit(wParam, lParam);
}

void CALLBACK COVOFileDialogImp::postAgain(HWND child, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(child, timer);
    ::PostMessageW(child, kPostInit, 0, 0);
}

LRESULT COVOFileDialogImp::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && !m_bVistaStyle) {
        tellOfCommand(LOWORD(wParam), HIWORD(wParam), reinterpret_cast<HWND>(lParam));
        if (!m_hWnd)
            return 0; // the owner has destroyed the dialog
    }
    return CFileDialog::WindowProc(message, wParam, lParam);
}

void COVOFileDialogImp::tellOfCommand(WORD id, WORD code, HWND control)
{
    using ovoui::ClassicEvent;
    const ovoui::Click click = m_declared.clickOn(id);
    switch (ovoui::classicEvent(code, control != nullptr, click.meaning)) {
    case ClassicEvent::CheckButtonToggled:
        m_owner->OnCheckButtonToggled(id, IsDlgButtonChecked(id) != 0);
        break;
    case ClassicEvent::ButtonClicked:
        m_owner->OnButtonClicked(id);
        break;
    case ClassicEvent::MenuOpens:
        openMenu(id);
        break;
    case ClassicEvent::RadioSelected:
        m_owner->OnItemSelected(click.group, id);
        break;
    case ClassicEvent::ItemSelected:
        tellOfSelection(id, control);
        break;
    case ClassicEvent::TextChanged:
        m_owner->OnEnChange(id);
        break;
    case ClassicEvent::None:
        break;
    }
}

void COVOFileDialogImp::tellOfSelection(WORD id, HWND control)
{
    const auto item = ovoui::itemOf(::SendMessageW(control, CB_GETCURSEL, 0, 0));
    if (!item)
        throwIntCast();
    m_owner->OnItemSelected(id, *item);
}

/// Below its button, as in the new-style dialog. The menu's own numbers are places: an item of the host may
/// have the number 0, which stands for no choice there.
void COVOFileDialogImp::openMenu(WORD id)
{
    m_owner->OnControlActivating(id);
    if (!m_hWnd)
        return; // the owner has destroyed the dialog
    const std::vector<ovoui::MenuItem>& items = m_declared.menuItems(id);
    CMenu menu;
    menu.CreatePopupMenu();
    for (std::size_t place = 0; place < items.size(); ++place)
        menu.AppendMenu(MF_STRING, place + 1, items[place].label.c_str());
    const int chosen =
        ovoui::frame::openBelow(menu, TPM_RETURNCMD | TPM_NONOTIFY, ::GetDlgItem(m_hWnd, id), *this);
    if (chosen > 0 && m_hWnd)
        m_owner->OnItemSelected(id, items[static_cast<std::size_t>(chosen) - 1].id);
}

BOOL COVOFileDialogImp::OnHelpInfo(HELPINFO* info)
{
    return m_owner->OnHelpInfo(info, CCommonDialog::OnHelpInfo(info));
}

void COVOFileDialogImp::OnSize(UINT type, int cx, int cy)
{
    m_owner->OnSize(type, cx, cy);
    if (m_hWnd)
        CFileDialog::OnSize(type, cx, cy);
}

// Both paths

BOOL COVOFileDialogImp::OnFileNameOK()
{
    return m_owner->OnFileNameOK(CFileDialog::OnFileNameOK());
}

void COVOFileDialogImp::OnLBSelChangedNotify(UINT box, UINT selection, UINT code)
{
    m_owner->OnLBSelChangedNotify(box, selection, code);
}

void COVOFileDialogImp::OnInitDone()
{
    m_owner->OnInitDone();
}

void COVOFileDialogImp::OnFileNameChange()
{
    m_owner->OnFileNameChange();
}

void COVOFileDialogImp::OnFolderChange()
{
    m_owner->OnFolderChange();
}

void COVOFileDialogImp::OnTypeChange()
{
    m_owner->OnTypeChange();
}

// The new-style path

/// Nothing may leave a method that the system calls: a CException is reported, anything else waits for the
/// end of DoModal, which comes at once.
template <class Handler>
HRESULT COVOFileDialogImp::tell(Handler&& handler)
{
    const std::exception_ptr raised = ovoui::frame::keeping([&] {
        try {
            handler(*m_owner);
        } catch (CException* exception) {
            MSG message{};
            message.message = WM_COMMAND;
            AfxGetThread()->ProcessWndProcException(exception, &message);
            exception->Delete();
        }
    });
    if (raised) {
        if (!m_kept)
            m_kept = raised;
        cancelNewStyle();
    }
    return S_OK;
}

/// A menu opens after its event whatever the handler has done, and its loop goes on without the dialog. So
/// the dialog is cancelled by a timer, which that loop lets through.
void COVOFileDialogImp::cancelNewStyle() const
{
    HWND dialog = nullptr;
    IOleWindow* window = nullptr;
    if (SUCCEEDED(m_pIFileDialog->QueryInterface(IID_IOleWindow, reinterpret_cast<void**>(&window)))) {
        window->GetWindow(&dialog);
        window->Release();
    }
    if (!dialog || !::SetTimer(dialog, kCancel, USER_TIMER_MINIMUM, &cancelMenuAndDialog))
        m_pIFileDialog->Close(HRESULT_FROM_WIN32(ERROR_CANCELLED));
}

void CALLBACK COVOFileDialogImp::cancelMenuAndDialog(HWND dialog, UINT, UINT_PTR timer, DWORD)
{
    ::KillTimer(dialog, timer);
    ::EndMenu();
    ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

STDMETHODIMP_(ULONG) COVOFileDialogImp::XControlEvents::AddRef()
{
    METHOD_PROLOGUE_EX_(COVOFileDialogImp, ControlEvents)
    return pThis->ExternalAddRef();
}

STDMETHODIMP_(ULONG) COVOFileDialogImp::XControlEvents::Release()
{
    METHOD_PROLOGUE_EX_(COVOFileDialogImp, ControlEvents)
    return pThis->ExternalRelease();
}

STDMETHODIMP COVOFileDialogImp::XControlEvents::QueryInterface(REFIID iid, LPVOID* object)
{
    METHOD_PROLOGUE_EX_(COVOFileDialogImp, ControlEvents)
    return static_cast<HRESULT>(pThis->ExternalQueryInterface(&iid, object));
}

STDMETHODIMP COVOFileDialogImp::XControlEvents::OnItemSelected(IFileDialogCustomize*, DWORD control,
                                                               DWORD item)
{
    METHOD_PROLOGUE(COVOFileDialogImp, ControlEvents)
    return pThis->tell([=](COVOFileDialog& owner) { owner.OnItemSelected(control, item); });
}

STDMETHODIMP COVOFileDialogImp::XControlEvents::OnButtonClicked(IFileDialogCustomize*, DWORD control)
{
    METHOD_PROLOGUE(COVOFileDialogImp, ControlEvents)
    return pThis->tell([=](COVOFileDialog& owner) { owner.OnButtonClicked(control); });
}

STDMETHODIMP COVOFileDialogImp::XControlEvents::OnCheckButtonToggled(IFileDialogCustomize*, DWORD control,
                                                                     BOOL checked)
{
    METHOD_PROLOGUE(COVOFileDialogImp, ControlEvents)
    return pThis->tell([=](COVOFileDialog& owner) { owner.OnCheckButtonToggled(control, checked); });
}

STDMETHODIMP COVOFileDialogImp::XControlEvents::OnControlActivating(IFileDialogCustomize*, DWORD control)
{
    METHOD_PROLOGUE(COVOFileDialogImp, ControlEvents)
    return pThis->tell([=](COVOFileDialog& owner) { owner.OnControlActivating(control); });
}
