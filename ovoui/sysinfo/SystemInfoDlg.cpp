#include <ovoui/sysinfo/SystemInfoDlg.h>

#include <ovoui/frame/ClipboardText.h>
#include <ovoui/sysinfo/MachineInfo.h>
#include <ovoui/sysinfo/ModuleReader.h>
#include <ovoui/sysinfo/StretchedControls.h>

#include <ovouires/resource.h>

using namespace ovoui::sysinfo;

IMPLEMENT_DYNCREATE(CSystemInfoDlg, COVOModalDialog)

BEGIN_MESSAGE_MAP(CSystemInfoDlg, COVOModalDialog)
    ON_WM_SHOWWINDOW()
    ON_COMMAND(IDC_SYSTEM_INFO_COPY, &CSystemInfoDlg::OnCopy)
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
END_MESSAGE_MAP()

namespace
{

constexpr int kTabStop = 92; // dialog units

} // namespace

CSystemInfoDlg::CSystemInfoDlg(CWnd* pParent)
    : COVOModalDialog(IDD_SYSTEM_INFO, pParent)
    , m_controls(std::make_unique<StretchedControls>())
{
}

CSystemInfoDlg::~CSystemInfoDlg() = default;

void CSystemInfoDlg::ShowMachine(bool show)
{
    m_aboutMachine = show;
}

void CSystemInfoDlg::DoDataExchange(CDataExchange* exchange)
{
    COVOModalDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_SYSTEM_INFO_TEXT, m_text);
}

BOOL CSystemInfoDlg::OnInitDialog()
{
    COVOModalDialog::OnInitDialog();
    m_controls->begin(*this);
    m_controls->add(IDC_SYSTEM_INFO_TEXT, Stretch::Grow);
    m_controls->add(IDC_SYSTEM_INFO_COPY, Stretch::MoveBoth);
    m_controls->add(IDCANCEL, Stretch::MoveBoth);
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
    m_fixedFont.DeleteObject(); // of a control that has gone
    if (m_fixedFont.CreateFontIndirect(&face))
        m_text.SetFont(&m_fixedFont, FALSE);
}

void CSystemInfoDlg::showModules()
{
    m_modules = m_aboutMachine ? machineAsText(machineInfo()) + L"\r\n" : std::wstring();
    m_modules += loadedModulesText();
    m_text.SetWindowText(m_modules.c_str());
}

void CSystemInfoDlg::OnShowWindow(BOOL bShow, UINT nStatus)
{
    if (bShow)
        showModules();
    COVOModalDialog::OnShowWindow(bShow, nStatus);
}

void CSystemInfoDlg::OnCopy()
{
    ovoui::frame::copyByOle(m_modules);
}

// Size

void CSystemInfoDlg::OnSize(UINT type, int width, int height)
{
    COVOModalDialog::OnSize(type, width, height);
    m_controls->apply(type, CSize(width, height));
}

void CSystemInfoDlg::OnGetMinMaxInfo(MINMAXINFO* info)
{
    COVOModalDialog::OnGetMinMaxInfo(info);
    m_controls->limit(*info);
}
