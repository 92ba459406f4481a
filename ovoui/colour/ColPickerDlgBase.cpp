#include <ovoui/colour/ColPickerDlgBase.h>

#include <ovoui/colour/ShadedTabCtrl.h>
#include <ovoui/colour/core/ControlKeys.h>
#include <ovouires/resource.h>

#include <algorithm>
#include <initializer_list>

using namespace ovoui::colour;

IMPLEMENT_DYNAMIC(ColPickerDlgBase, COVOModalDialog)

BEGIN_MESSAGE_MAP(ColPickerDlgBase, COVOModalDialog)
    ON_WM_PAINT()
    ON_WM_HSCROLL()
    ON_WM_MOUSEMOVE() // mouse
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_DESTROY()
    ON_EN_KILLFOCUS(IDC_COLOUR_VALUE_1, &ColPickerDlgBase::OnKillfocusColpickerValues) // controls
    ON_EN_KILLFOCUS(IDC_COLOUR_VALUE_2, &ColPickerDlgBase::OnKillfocusColpickerValues)
    ON_EN_KILLFOCUS(IDC_COLOUR_VALUE_3, &ColPickerDlgBase::OnKillfocusColpickerValues)
    ON_CBN_SELCHANGE(IDC_COLOUR_SPACE, &ColPickerDlgBase::OnColourSpaceChanged)
    ON_WM_SYSCOLORCHANGE() // the system
    ON_WM_HELPINFO()
    ON_WM_CTLCOLOR()
    ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

namespace
{

bool isOneOf(HWND window, std::initializer_list<const CWnd*> controls)
{
    return window &&
           std::ranges::any_of(controls, [window](const CWnd* one) { return one->m_hWnd == window; });
}

} // namespace

ColPickerDlgBase::ColPickerDlgBase(CWinApp& app, ColPickerModeType mode, const Colour& colour, CWnd* centreOn,
                                   CWnd* parent)
    : COVOModalDialog(IDD_COLOUR_PICKER, parent)
    , ColPicker(app, mode)
    , m_centreOn(centreOn)
    , m_parent(parent)
    , m_initialColour(colour)
{
    m_colour = colour;
    m_alphaEnabled = colour.a() >= 0;
}

ColPickerDlgBase::ColPickerDlgBase(int templateId, CWinApp& app, const Colour& colour, CWnd* centreOn,
                                   CWnd* parent)
    : COVOModalDialog(static_cast<UINT>(templateId), parent)
    , ColPicker(app, ColPickerModeRGB)
    , m_centreOn(centreOn)
    , m_parent(parent)
    , m_initialColour(colour)
{
    m_colour = colour;
}

/// The window goes first: its messages lead to the picker, which is destroyed before the dialog's base.
ColPickerDlgBase::~ColPickerDlgBase()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd);
}

// Opening and closing

void ColPickerDlgBase::createColPickerDlgBase()
{
    if (!Create(IDD_COLOUR_PICKER, m_parent))
        return;
    m_modeless = true;
    ShowWindow(SW_SHOW);
}

Colour ColPickerDlgBase::GetColour()
{
    return m_colour;
}

BOOL ColPickerDlgBase::OnInitDialog()
{
    const Lifeline::Watch watch(m_dialogLifeline);
    COVOModalDialog::OnInitDialog();
    if (m_centreOn)
        CenterWindow(m_centreOn);
    DoInit(this, m_space);
    if (!watch.alive() || !m_hWnd)
        return TRUE;
    if (m_alphaEnabled)
        for (const int id : {IDC_COLOUR_VALUE_ALPHA, IDC_COLOUR_SLIDER_ALPHA, IDC_COLOUR_CAPTION_ALPHA})
            if (CWnd* const control = GetDlgItem(id))
                control->ShowWindow(SW_SHOW);
    SetColour(this, m_initialColour, false);
    if (m_alphaEnabled)
        Invalidate(TRUE);
    return TRUE;
}

/// A number that is being typed counts, whichever way the dialog is told to close. Otherwise the edits are
/// not read: they show the colour rounded.
void ColPickerDlgBase::OnOK()
{
    const Lifeline::Watch watch(m_dialogLifeline);
    if (isOneOf(::GetFocus(), {&m_value1, &m_value2, &m_value3, &m_valueAlpha}))
        DoKillfocusColpickerValues(this);
    if (!watch.alive() || !m_hWnd)
        return;
    if (m_modeless)
        DestroyWindow();
    else
        COVOModalDialog::OnOK();
}

void ColPickerDlgBase::OnCancel()
{
    if (m_modeless)
        DestroyWindow();
    else
        COVOModalDialog::OnCancel();
}

void ColPickerDlgBase::OnDestroy()
{
    m_modeless = false;
    doOnDestroy();
    COVOModalDialog::OnDestroy();
}

// Controls

void ColPickerDlgBase::DoDataExchange(CDataExchange* exchange)
{
    COVOModalDialog::DoDataExchange(exchange);
    const auto attach = [&](int id, CWnd& control) {
        if (GetDlgItem(id))
            DDX_Control(exchange, id, control);
    };
    const auto caption = [&](int id, CString& text) {
        if (GetDlgItem(id))
            DDX_Text(exchange, id, text);
    };
    attach(IDC_COLOUR_VALUE_1, m_value1);
    attach(IDC_COLOUR_VALUE_2, m_value2);
    attach(IDC_COLOUR_VALUE_3, m_value3);
    attach(IDC_COLOUR_SLIDER_1, m_slider1);
    attach(IDC_COLOUR_SLIDER_2, m_slider2);
    attach(IDC_COLOUR_SLIDER_3, m_slider3);
    caption(IDC_COLOUR_CAPTION_1, m_caption1);
    caption(IDC_COLOUR_CAPTION_2, m_caption2);
    caption(IDC_COLOUR_CAPTION_3, m_caption3);
    attach(IDC_COLOUR_SPACE, m_space);
}

void ColPickerDlgBase::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    const Lifeline::Watch watch(m_dialogLifeline);
    DoHScroll(this, code, bar);
    if (watch.alive() && m_hWnd)
        COVOModalDialog::OnHScroll(code, position, bar);
}

void ColPickerDlgBase::OnKillfocusColpickerValues()
{
    DoKillfocusColpickerValues(this);
}

void ColPickerDlgBase::OnColourSpaceChanged()
{
    const int item = m_space.GetCurSel();
    if (item != CB_ERR)
        SetSliderMode(this, static_cast<ColPickerModeType>(item + 1));
}

BOOL ColPickerDlgBase::PreTranslateMessage(MSG* message)
{
    const bool down = message->message == WM_KEYDOWN;
    const Lifeline::Watch watch(m_dialogLifeline);
    switch (down ? dialogKey(static_cast<unsigned>(message->wParam)) : DialogKey::None) {
    case DialogKey::CancelDrag:
        if (cancelDrag(this))
            return TRUE;
        break;
    case DialogKey::TakeNumbers:
        DoKillfocusColpickerValues(this);
        if (!watch.alive() || !m_hWnd)
            return TRUE;
        break;
    case DialogKey::None:
        break;
    }
    return COVOModalDialog::PreTranslateMessage(message);
}

BOOL ColPickerDlgBase::OnHelpInfo(HELPINFO*)
{
    return TRUE;
}

// Mouse

void ColPickerDlgBase::OnMouseMove(UINT flags, CPoint point)
{
    if (!DoMouseMove(this, flags, point))
        Default();
}

void ColPickerDlgBase::OnLButtonDown(UINT flags, CPoint point)
{
    if (!DoLButtonDown(this, flags, point))
        Default();
}

void ColPickerDlgBase::OnLButtonUp(UINT flags, CPoint point)
{
    if (!DoLButtonUp(this, flags, point))
        Default();
}

void ColPickerDlgBase::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (!DoLButtonDblClk(this, flags, point))
        Default();
}

void ColPickerDlgBase::OnCaptureChanged(CWnd* wnd)
{
    DoCaptureChanged(this, wnd);
    COVOModalDialog::OnCaptureChanged(wnd);
}

// Painting

void ColPickerDlgBase::OnPaint()
{
    CPaintDC dc(this);
    DoPaint(this, &dc);
}

HBRUSH ColPickerDlgBase::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const Lifeline::Watch watch(m_dialogLifeline);
    const HBRUSH brush = COVOModalDialog::OnCtlColor(dc, control, type);
    if (!watch.alive())
        return brush;
    CShadedTabCtrl* const tabs = tabCtrl();
    return tabs ? tabs->AmendCtlColor(dc, type, brush, control) : brush;
}
