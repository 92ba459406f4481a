#include <ovoui/colour/ColPickerPaletteDlg.h>

#include <ovoui/colour/ColourText.h>
#include <ovoui/colour/Contrast.h>
#include <ovoui/sliders/UnitNumbers.h>
#include <ovouires/resource.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace ovoui::colour;

IMPLEMENT_DYNAMIC(ColPickerPaletteDlg, ColPickerDlgBase)

BEGIN_MESSAGE_MAP(ColPickerPaletteDlg, ColPickerDlgBase)
    ON_EN_KILLFOCUS(IDC_COLOUR_VALUE_ALPHA, &ColPickerPaletteDlg::OnKillfocusColpickerValues)
    ON_EN_KILLFOCUS(IDC_COLOUR_TEXT, &ColPickerPaletteDlg::OnKillfocusText)
    ON_BN_CLICKED(IDC_COLOUR_BEFORE, &ColPickerPaletteDlg::OnBefore)
    ON_CONTROL(CColourGrid::kChosen, IDC_COLOUR_RECENT, &ColPickerPaletteDlg::OnRecent)
    ON_CONTROL(CColourDropper::kTaken, IDC_COLOUR_DROPPER, &ColPickerPaletteDlg::OnColourOfScreen)
    ON_WM_DESTROY()
    ON_WM_DRAWITEM()
END_MESSAGE_MAP()

namespace
{

constexpr wchar_t kSection[] = L"settings";
constexpr wchar_t kModeEntry[] = L"ColourModel";
constexpr wchar_t kCustomEntry[] = L"CustomColours";
constexpr wchar_t kRecentEntry[] = L"RecentColours";

/// As many as there are columns of custom colours.
constexpr int kRecentColours = 9;

/// The grade in the user's language.
std::wstring gradeText(double contrast)
{
    const std::wstring_view grade = gradeOf(contrast);
    if (grade != kGradeOfLargeText)
        return std::wstring(grade);
    CString large;
    large.LoadString(IDS_COLOUR_GRADE_LARGE);
    return large.GetString();
}

/// With one digit behind the user's decimal sign.
std::wstring ratioText(double contrast)
{
    CString machine;
    machine.Format(L"%.1f", contrast);
    std::wstring text;
    CUnitNumbers(std::wstring(), false).toDisplay(text, machine.GetString());
    return text;
}

constexpr std::array<COLORREF, 18> kFirstColours{
    RGB(0, 0, 0),       RGB(127, 127, 127), RGB(136, 0, 21),    RGB(237, 28, 36),  RGB(255, 127, 39),
    RGB(255, 242, 0),   RGB(34, 177, 76),   RGB(0, 162, 232),   RGB(63, 72, 204),  RGB(255, 255, 255),
    RGB(195, 195, 195), RGB(185, 122, 87),  RGB(255, 174, 201), RGB(255, 201, 14), RGB(239, 228, 176),
    RGB(181, 230, 29),  RGB(153, 217, 234), RGB(163, 73, 164)};

/// Those that cannot be read stay as they are.
void readColours(const CString& text, std::array<COLORREF, 18>& colours)
{
    const auto read = coloursFromText(std::wstring_view(text.GetString()));
    for (std::size_t i = 0; i < std::min(read.size(), colours.size()); ++i)
        if (read[i])
            colours[i] = read[i]->colorref();
}

std::vector<Colour> coloursOf(const std::array<COLORREF, 18>& codes)
{
    std::vector<Colour> colours;
    for (const COLORREF code : codes)
        colours.push_back(Colour::colorref(code));
    return colours;
}

} // namespace

ColPickerPaletteDlg::ColPickerPaletteDlg(CWinApp& app, ColPickerModeType mode, const Colour& colour,
                                         CWnd* centreOn, CWnd* parent)
    : ColPickerDlgBase(IDD_COLOUR_PALETTE, app, colour, centreOn, parent)
    , m_before(colour)
    , m_alpha(colour.a())
    , m_custom(kFirstColours)
    , m_recent(kRecentColours)
    , m_history(colour)
{
    m_mode = mode;
    m_alphaEnabled = colour.a() >= 0;
    m_customAreaId = IDC_COLOUR_SWATCHES;
    m_keysEnabled = true;
    m_onlyTypedNumbers = true; // a typed code stays what it is
}

ColPickerPaletteDlg::~ColPickerPaletteDlg()
{
    if (m_hWnd)
        ::DestroyWindow(m_hWnd); // while its colours can still be kept
}

// Settings

void ColPickerPaletteDlg::LoadSettings()
{
    m_mode = static_cast<ColPickerModeType>(m_app.GetProfileInt(kSection, kModeEntry, m_mode));
    readColours(m_app.GetProfileString(kSection, kCustomEntry), m_custom);
    m_recent.setText(std::wstring_view(m_app.GetProfileString(kSection, kRecentEntry).GetString()));
}

void ColPickerPaletteDlg::SaveSettings()
{
    m_app.WriteProfileInt(kSection, kModeEntry, m_mode);
    m_app.WriteProfileString(kSection, kCustomEntry, textOfColours(coloursOf(m_custom)).c_str());
    m_app.WriteProfileString(kSection, kRecentEntry, m_recent.text().c_str());
}

COLORREF& ColPickerPaletteDlg::customCols(int index)
{
    return m_custom[static_cast<std::size_t>(index)];
}

void ColPickerPaletteDlg::OnDestroy()
{
    SaveSettings();
    ColPickerDlgBase::OnDestroy();
}

// The dialog

void ColPickerPaletteDlg::DoDataExchange(CDataExchange* exchange)
{
    ColPickerDlgBase::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COLOUR_VALUE_ALPHA, m_valueAlpha);
    DDX_Control(exchange, IDC_COLOUR_SLIDER_ALPHA, m_sliderAlpha);
    DDX_Control(exchange, IDC_COLOUR_TEXT, m_text);
    DDX_Control(exchange, IDC_COLOUR_DROPPER, m_dropper);
}

BOOL ColPickerPaletteDlg::OnInitDialog()
{
    const Lifeline::Watch watch(m_paletteLifeline);
    const BOOL result = ColPickerDlgBase::OnInitDialog();
    if (!watch.alive() || !m_hWnd)
        return result;
    m_history = ColourHistory(m_colour);
    m_recentGrid.createInPlace(*this, IDC_COLOUR_RECENT);
    showRecent();
    showColour();
    return result;
}

/// A colour or number that is being typed counts.
void ColPickerPaletteDlg::OnOK()
{
    const Lifeline::Watch watch(m_paletteLifeline);
    if (::GetFocus() == m_text.m_hWnd)
        OnKillfocusText();
    if (watch.alive() && m_hWnd)
        DoKillfocusColpickerValues(this);
    if (!watch.alive() || !m_hWnd)
        return;
    m_recent.use(m_colour); // kept when the window goes
    ColPickerDlgBase::OnOK();
}

void ColPickerPaletteDlg::showRecent()
{
    std::vector<COLORREF> codes;
    for (const Colour& colour : m_recent.colours())
        codes.push_back(colour.colorref());
    m_recentGrid.EnableWindow(!codes.empty());
    m_recentGrid.SetColours(std::move(codes), kRecentColours);
}

// The colour

void ColPickerPaletteDlg::UpdateExternalColours(bool final)
{
    keepAlpha();
    if (final)
        m_history.add(m_colour);
    showColour();
}

/// A swatch, and the pure hue of a double-click, come without alpha.
void ColPickerPaletteDlg::keepAlpha()
{
    if (!m_alphaEnabled)
        return;
    if (m_colour.a() >= 0)
        m_alpha = m_colour.a();
    else
        SetColour(this, Colour::hlsa(m_colour.h_hls(), m_colour.l_hls(), m_colour.s_hls(), m_alpha), false);
}

/// A change by the user.
void ColPickerPaletteDlg::use(const Colour& colour)
{
    const Lifeline::Watch watch(m_paletteLifeline);
    SetColour(this, colour, true);
    UpdateWindow(); // the numbers must not be of the colour before when an edit is left
    if (watch.alive() && m_hWnd)
        UpdateExternalColours(true);
}

void ColPickerPaletteDlg::showColour()
{
    const std::wstring name = nameOfColour(m_colour);
    m_text.SetWindowText(name.empty() ? textOfColour(m_colour).c_str() : name.c_str());
    const double onWhite = contrast(m_colour, Colour::rgb(1, 1, 1));
    const double onBlack = contrast(m_colour, Colour::rgb(0, 0, 0));
    CString text;
    text.Format(IDS_COLOUR_CONTRAST, ratioText(onWhite).c_str(), gradeText(onWhite).c_str(),
                ratioText(onBlack).c_str(), gradeText(onBlack).c_str());
    SetDlgItemText(IDC_COLOUR_CONTRAST, text);
}

/// What is no colour goes.
void ColPickerPaletteDlg::OnKillfocusText()
{
    CString typed;
    m_text.GetWindowText(typed);
    const auto read = colourFromText(std::wstring_view(typed.GetString()));
    if (!read) {
        showColour();
        return;
    }
    // The text has alpha only where it says so; else what the dialog has stays.
    const bool saysAlpha = m_alphaEnabled && read->a() >= 0;
    const Colour colour = Colour::rgba(read->r(), read->g(), read->b(), saysAlpha ? read->a() : m_colour.a());
    if (colour.colorref() == m_colour.colorref() && !saysAlpha)
        showColour();
    else
        use(colour);
}

void ColPickerPaletteDlg::OnBefore()
{
    use(m_before);
}

void ColPickerPaletteDlg::OnRecent()
{
    const int index = m_recentGrid.Current();
    if (index >= 0)
        useOpaque(m_recentGrid.Colours()[static_cast<std::size_t>(index)]);
}

void ColPickerPaletteDlg::OnColourOfScreen()
{
    useOpaque(m_dropper.TakenColour());
}

/// The alpha stays.
void ColPickerPaletteDlg::useOpaque(COLORREF colour)
{
    const Colour opaque = Colour::colorref(colour);
    use(Colour::rgba(opaque.r(), opaque.g(), opaque.b(), m_colour.a()));
}

void ColPickerPaletteDlg::OnDrawItem(int id, DRAWITEMSTRUCT* item)
{
    if (id != IDC_COLOUR_BEFORE) {
        ColPickerDlgBase::OnDrawItem(id, item);
        return;
    }
    CBrush brush(m_before.colorref());
    ::FillRect(item->hDC, &item->rcItem, brush);
    if (item->itemState & ODS_FOCUS) {
        CRect frame(item->rcItem);
        for (const int mark : {BLACK_BRUSH, WHITE_BRUSH}) { // one of them shows on every colour
            frame.DeflateRect(1, 1);
            ::FrameRect(item->hDC, &frame, static_cast<HBRUSH>(::GetStockObject(mark)));
        }
    }
}

BOOL ColPickerPaletteDlg::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0 &&
        goBackOrForward(message->wParam))
        return TRUE;
    return ColPickerDlgBase::PreTranslateMessage(message);
}

/// Whether the key was one of the two. Typing that can be undone goes first, where it is done.
bool ColPickerPaletteDlg::goBackOrForward(WPARAM key)
{
    if ((key != 'Z' && key != 'Y') || ::SendMessageW(::GetFocus(), EM_CANUNDO, 0, 0))
        return false;
    const Colour* const colour = key == 'Z' ? m_history.back() : m_history.forward();
    if (colour)
        use(Colour(*colour));
    return true;
}
