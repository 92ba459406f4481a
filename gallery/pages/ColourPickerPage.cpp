#include "ColourPickerPage.h"

#include "model/ColourSheet.h"
#include "resource.h"

#include <ovoui/colour/ColPickerPaletteDlg.h>

#include <ovocor/Text.h>

BEGIN_MESSAGE_MAP(ColourPickerPage, GalleryPage)
    ON_BN_CLICKED(IDC_PICK, &ColourPickerPage::OnPick)
    ON_BN_CLICKED(IDC_PICK_CUSTOM, &ColourPickerPage::OnCustomColours)
    ON_BN_CLICKED(IDC_PICK_ON_TAB, &ColourPickerPage::OnOnTab)
    ON_BN_CLICKED(IDC_PICK_IN_SHEET, &ColourPickerPage::OnInSheet)
    ON_BN_CLICKED(IDC_PICK_MODELESS, &ColourPickerPage::OnModeless)
    ON_BN_CLICKED(IDC_PICK_PALETTE, &ColourPickerPage::OnPalette)
    ON_BN_CLICKED(IDC_PICK_ALPHA, &ColourPickerPage::OnAlpha)
    ON_CONTROL(CColourButton::kChosen, IDC_PICK_BUTTON, &ColourPickerPage::OnButtonChosen)
    ON_CONTROL(CColourButton::kPointed, IDC_PICK_BUTTON, &ColourPickerPage::OnButtonPointed)
    ON_CONTROL(CColourButton::kClosed, IDC_PICK_BUTTON, &ColourPickerPage::OnButtonClosed)
    ON_CONTROL(CColourDropper::kTaken, IDC_PICK_DROPPER, &ColourPickerPage::OnTaken)
END_MESSAGE_MAP()

namespace
{

constexpr double kHalf = 0.5;

std::wstring describe(const Colour& colour)
{
    const COLORREF value = colour.colorref();
    std::wstring text = stringPrintf(L"#%02X%02X%02X", GetRValue(value), GetGValue(value), GetBValue(value));
    if (colour.a() >= 0)
        text += stringPrintf(L", alpha %.2f", colour.a());
    return text;
}

Colour withAlpha(const Colour& colour, double alpha)
{
    return Colour::hlsa(colour.h_hls(), colour.l_hls(), colour.s_hls(), alpha);
}

} // namespace

ColourPickerPage::ColourPickerPage()
    : GalleryPage(IDD_PAGE_COLOUR_PICKER)
{
    m_host.changed = [this](const Colour& colour, bool final) {
        show(colour);
        if (final)
            log(L"UpdateExternalColours(true): " + describe(colour));
    };
}

ColourPickerPage::~ColourPickerPage() = default;

void ColourPickerPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_PICK_BUTTON, m_button);
    DDX_Control(exchange, IDC_PICK_DROPPER, m_dropper);
    DDX_Colour(exchange, m_button, m_colour);
}

BOOL ColourPickerPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_sample.create(*this);
    replace(IDC_PICK_SAMPLE, m_sample);
    CheckRadioButton(IDC_PICK_RGB, IDC_PICK_HSV, IDC_PICK_HLS);
    stretch(IDC_PICK_SAMPLE, {.growX = 100, .growY = 100});
    show(m_colour);
    return FALSE;
}

ColPickerModeType ColourPickerPage::chosenMode() const
{
    for (const auto& [id, mode] :
         {std::pair{IDC_PICK_RGB, ColPickerModeRGB}, std::pair{IDC_PICK_HLS, ColPickerModeHLS}})
        if (IsDlgButtonChecked(id))
            return mode;
    return ColPickerModeHSV;
}

void ColourPickerPage::show(const Colour& colour)
{
    m_sample.show(colour);
    SetDlgItemText(IDC_PICK_RESULT, describe(colour).c_str());
}

/// After a dialog: what was cancelled goes back.
void ColourPickerPage::picked(INT_PTR answer, const Colour& colour)
{
    if (!m_hWnd)
        return; // another page was opened while the dialog was
    use(answer == IDOK ? colour : m_colour);
    log(answer == IDOK ? L"Picked " + describe(colour) : std::wstring(L"Cancelled"));
}

void ColourPickerPage::use(const Colour& colour)
{
    m_colour = colour;
    m_button.SetColour(colour);
    show(colour);
}

void ColourPickerPage::OnPick()
{
    LivePicker dialog(m_host, chosenMode(), m_colour, this);
    dialog.useKeyboard(byKeyboard());
    const INT_PTR answer = dialog.DoModal();
    picked(answer, dialog.GetColour());
}

void ColourPickerPage::OnCustomColours()
{
    SwatchPicker dialog(m_host, m_colour, this);
    dialog.useKeyboard(byKeyboard());
    const INT_PTR answer = dialog.DoModal();
    picked(answer, dialog.GetColour());
}

void ColourPickerPage::OnOnTab()
{
    TabbedPicker dialog(m_host, m_colour, this);
    const INT_PTR answer = dialog.DoModal();
    picked(answer, dialog.colour());
}

void ColourPickerPage::OnInSheet()
{
    ColourSheet sheet(m_host, m_colour, this);
    const INT_PTR answer = sheet.DoModal();
    picked(answer, sheet.colour());
}

void ColourPickerPage::OnPalette()
{
    ColPickerPaletteDlg dialog(*AfxGetApp(), chosenMode(), m_colour, this, this);
    const INT_PTR answer = dialog.DoModal();
    picked(answer, dialog.GetColour());
}

/// Stays open beside the page, and closes with it.
void ColourPickerPage::OnModeless()
{
    if (m_modeless && m_modeless->m_hWnd) {
        m_modeless->SetFocus();
        return;
    }
    m_modeless = std::make_unique<LivePicker>(m_host, chosenMode(), m_colour, this);
    m_modeless->useKeyboard(byKeyboard());
    m_modeless->createColPickerDlgBase();
}

void ColourPickerPage::OnAlpha()
{
    use(withAlpha(m_colour, IsDlgButtonChecked(IDC_PICK_ALPHA) ? kHalf : -1));
}

// The colour button, whose palette is previewed, and the eyedropper

void ColourPickerPage::OnButtonChosen()
{
    use(m_button.GetColour());
    log(L"Chosen " + describe(m_colour));
}

void ColourPickerPage::OnButtonPointed()
{
    show(m_button.PointedColour().value_or(m_colour));
}

void ColourPickerPage::OnButtonClosed()
{
    show(m_colour);
}

void ColourPickerPage::OnTaken()
{
    use(withAlpha(Colour::colorref(m_dropper.TakenColour()), m_colour.a()));
    log(L"Taken from the screen: " + describe(m_colour));
}

std::vector<std::wstring> ColourPickerPage::poses() const
{
    return {L"rgb",          L"hls",      L"hsv",    L"alpha",
            L"mid-drag",     L"custom",   L"on-tab", L"property-sheet",
            L"palette",      L"keyboard", L"button", L"dropper",
            L"right-to-left"};
}

/// What the page itself shows, without a dialog.
bool ColourPickerPage::posePage(const std::wstring& name)
{
    if (name == L"button") {
        m_button.SetFocus();
        m_button.DropDown();
    } else if (name == L"dropper") {
        CRect sample;
        m_sample.GetWindowRect(&sample);
        ::SetCursorPos(sample.left + sample.Width() * 3 / 5, sample.top + sample.Height() / 4); // the text
        m_dropper.SendMessage(BM_CLICK);
    } else {
        return false;
    }
    return true;
}

bool ColourPickerPage::pose(const std::wstring& name)
{
    if (posePage(name))
        return true;
    if (name == L"custom") {
        SwatchPicker(m_host, m_colour, this).DoModal();
        return true;
    }
    if (name == L"right-to-left") {
        MirroredPicker(m_host, m_colour, this).DoModal();
        return true;
    }
    if (name == L"on-tab") {
        TabbedPicker(m_host, m_colour, this).DoModal();
        return true;
    }
    if (name == L"property-sheet") {
        ColourSheet(m_host, m_colour, this).DoModal();
        return true;
    }
    if (name == L"palette") {
        if (AfxGetApp()->GetProfileString(L"settings", L"RecentColours").IsEmpty())
            AfxGetApp()->WriteProfileString(L"settings", L"RecentColours",
                                            L"#D95C1F #548235 #226440 teal gold");
        ColPickerPaletteDlg(*AfxGetApp(), ColPickerModeHLS, m_colour, this, this).DoModal();
        return true;
    }
    const bool alpha = name == L"alpha";
    const ColPickerModeType mode = name == L"rgb"   ? ColPickerModeRGB
                                   : name == L"hsv" ? ColPickerModeHSV
                                                    : ColPickerModeHLS;
    LivePicker dialog(m_host, mode, alpha ? withAlpha(m_colour, kHalf) : m_colour, this);
    if (name == L"mid-drag")
        dialog.dragTo(200);
    else if (name == L"keyboard")
        dialog.useKeyboard(true);
    else if (!alpha && name != L"rgb" && name != L"hls" && name != L"hsv")
        return false;
    dialog.DoModal();
    return true;
}
