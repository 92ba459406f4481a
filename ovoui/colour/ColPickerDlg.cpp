#include <ovoui/colour/ColPickerDlg.h>

#include <ovouires/resource.h>

IMPLEMENT_DYNAMIC(ColPickerDlg, ColPickerDlgBase)

BEGIN_MESSAGE_MAP(ColPickerDlg, ColPickerDlgBase)
    ON_EN_KILLFOCUS(IDC_COLOUR_VALUE_ALPHA, &ColPickerDlg::OnKillfocusColpickerValues)
END_MESSAGE_MAP()

ColPickerDlg::ColPickerDlg(CWinApp& app, ColPickerModeType mode, const Colour& colour, CWnd* centreOn,
                           CWnd* parent)
    : ColPickerDlgBase(app, mode, colour, centreOn, parent)
{
}

ColPickerDlg::~ColPickerDlg() = default;

COLORREF& ColPickerDlg::customCols(int)
{
    static COLORREF unused = 0;
    return unused;
}

void ColPickerDlg::DoDataExchange(CDataExchange* exchange)
{
    ColPickerDlgBase::DoDataExchange(exchange);
    if (GetDlgItem(IDC_COLOUR_VALUE_ALPHA))
        DDX_Control(exchange, IDC_COLOUR_VALUE_ALPHA, m_valueAlpha);
    if (GetDlgItem(IDC_COLOUR_SLIDER_ALPHA))
        DDX_Control(exchange, IDC_COLOUR_SLIDER_ALPHA, m_sliderAlpha);
}
