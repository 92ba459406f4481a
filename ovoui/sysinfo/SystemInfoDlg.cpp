#include <ovoui/sysinfo/SystemInfoDlg.h>

#include <ovoui/sysinfo/ModuleReader.h>
#include <ovoui/tree/PlainText.h>

#include <ovouires/resource.h>

#include <ovocor/OvoError.h>

#include <afxole.h>

#include <memory>

IMPLEMENT_DYNAMIC(CSystemInfoDlg, COVOModalDialog)

BEGIN_MESSAGE_MAP(CSystemInfoDlg, COVOModalDialog)
    ON_WM_SHOWWINDOW()
    ON_COMMAND(IDC_SYSTEM_INFO_COPY, &CSystemInfoDlg::OnCopy)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

namespace
{

constexpr int kTabStop = 92; // dialog units
constexpr int kTries = 5;    // while another program has the clipboard open
constexpr DWORD kPause = 50; // milliseconds between two of them

/// Moves a child window and makes it larger.
void stretch(const CWnd& parent, CWnd* child, CSize move, CSize grow)
{
    if (!child)
        return;
    CRect place;
    child->GetWindowRect(&place);
    parent.ScreenToClient(&place);
    child->SetWindowPos(nullptr, place.left + move.cx, place.top + move.cy, place.Width() + grow.cx,
                        place.Height() + grow.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

CSystemInfoDlg::CSystemInfoDlg(CWnd* pParent)
    : COVOModalDialog(IDD_SYSTEM_INFO, pParent)
{
}

CSystemInfoDlg::~CSystemInfoDlg() = default;

void CSystemInfoDlg::DoDataExchange(CDataExchange* exchange)
{
    COVOModalDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SYSTEM_INFO_TEXT, m_text);
}

BOOL CSystemInfoDlg::OnInitDialog()
{
    COVOModalDialog::OnInitDialog();
    CRect rect;
    GetWindowRect(&rect);
    m_least = rect.Size();
    GetClientRect(&rect);
    m_client = rect.Size();
    useFixedFont();
    m_text.SetTabStops(kTabStop);
    m_text.SetLimitText(0); // as much as there is
    showModules();
    return TRUE;
}

void CSystemInfoDlg::useFixedFont()
{
    LOGFONT face{};
    GetFont()->GetLogFont(&face);
    face.lfPitchAndFamily = FIXED_PITCH | FF_MODERN;
    ::lstrcpynW(face.lfFaceName, L"Courier New", LF_FACESIZE);
    face.lfWidth = 0;
    if (m_fixedFont.CreateFontIndirect(&face))
        m_text.SetFont(&m_fixedFont, FALSE);
}

void CSystemInfoDlg::showModules()
{
    m_modules = ovoui::sysinfo::loadedModulesText();
    m_text.SetWindowText(m_modules.c_str());
}

void CSystemInfoDlg::OnShowWindow(BOOL bShow, UINT nStatus)
{
    if (bShow)
        showModules();
    COVOModalDialog::OnShowWindow(bShow, nStatus);
}

/// Another program may have the clipboard open for a moment.
void CSystemInfoDlg::OnCopy()
{
    for (int attempt = 1;; ++attempt) {
        auto source = std::make_unique<COleDataSource>();
        cachePlaintext(*source, m_modules);
        try {
            source->SetClipboard();
            source.release(); // the clipboard owns it now
            return;
        } catch (COleException* error) {
            error->Delete();
        }
        source.release()->InternalRelease();
        if (attempt == kTries)
            throw OvoError(
                L"The text could not be copied because another program is using the clipboard. Try again.");
        ::Sleep(kPause);
    }
}

// Size

void CSystemInfoDlg::OnSize(UINT type, int width, int height)
{
    COVOModalDialog::OnSize(type, width, height);
    if (type == SIZE_MINIMIZED || !m_text.m_hWnd || m_client == CSize())
        return;
    const CSize grown = CSize(width, height) - m_client;
    m_client = CSize(width, height);
    stretch(*this, &m_text, CSize(), grown);
    stretch(*this, GetDlgItem(IDC_SYSTEM_INFO_COPY), grown, CSize());
    stretch(*this, GetDlgItem(IDCANCEL), grown, CSize());
    Invalidate();
}

void CSystemInfoDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    COVOModalDialog::OnGetMinMaxInfo(info);
    info->ptMinTrackSize = {m_least.cx, m_least.cy};
}
