#include "MessageBoxPage.h"

#include "resource.h"

#include <ovoui/frame/MessageDialog.h>

#include <algorithm>
#include <iterator>
#include <span>

namespace
{

struct Choice
{
    const wchar_t* label;
    UINT flags;
};

constexpr Choice kButtons[] = {
    {L"OK", MB_OK},
    {L"OK, Cancel", MB_OKCANCEL},
    {L"Abort, Retry, Ignore", MB_ABORTRETRYIGNORE},
    {L"Yes, No, Cancel", MB_YESNOCANCEL},
    {L"Yes, No", MB_YESNO},
    {L"Retry, Cancel", MB_RETRYCANCEL},
    {L"Yes, Yes to All, No, Cancel", OVOMB_EXTBUTTONS | 1},
    {L"Yes, No, No to All, Cancel", OVOMB_EXTBUTTONS | 2},
    {L"Yes, Yes to All, No, No to All, Cancel", OVOMB_EXTBUTTONS | 3},
    {L"Yes, Yes to All, No, No to All", OVOMB_EXTBUTTONS | 4},
    {L"Yes, No, No to All", OVOMB_EXTBUTTONS | 5},
};

constexpr Choice kIcons[] = {
    {L"(of the buttons)", 0},
    {L"Stop", MB_ICONHAND},
    {L"Question", MB_ICONQUESTION},
    {L"Exclamation", MB_ICONEXCLAMATION},
    {L"Information", MB_ICONASTERISK},
    {L"Computer", OVOMB_EXTICONS | 0x10},
    {L"Fixed disc", OVOMB_EXTICONS | 0x20},
    {L"Network disc", OVOMB_EXTICONS | 0x30},
    {L"Removable disc", OVOMB_EXTICONS | 0x40},
    {L"CD", OVOMB_EXTICONS | 0x50},
    {L"Closed folder", OVOMB_EXTICONS | 0x60},
    {L"Open folder", OVOMB_EXTICONS | 0x70},
    {L"Internet", OVOMB_EXTICONS | 0x80},
    {L"Logo", OVOMB_EXTICONS | 0x90},
    {L"Key", OVOMB_EXTICONS | 0xA0},
    {L"Mouse", OVOMB_EXTICONS | 0xB0},
    {L"Network", OVOMB_EXTICONS | 0xC0},
    {L"Empty note", OVOMB_EXTICONS | 0xD0},
    {L"Full note", OVOMB_EXTICONS | 0xE0},
};

constexpr Choice kDefaults[] = {
    {L"First", MB_DEFBUTTON1},
    {L"Second", MB_DEFBUTTON2},
    {L"Third", MB_DEFBUTTON3},
    {L"Fourth", MB_DEFBUTTON4},
    {L"Fifth", OVOMB_EXTDEFBUTTON | 0x400},
    {L"Sixth", OVOMB_EXTDEFBUTTON | 0x500},
};

constexpr wchar_t kSaveText[] =
    L"The document \u201CSpring planting\u201D has been changed.\nDo you want to save the changes?";
constexpr wchar_t kReplaceText[] = L"A file with this name already exists.\nDo you want to replace it?";

/// A box that is shown for its picture.
struct Pose
{
    std::wstring_view name;
    UINT type;
    const wchar_t* text;
    std::wstring (*longText)() = nullptr; ///< instead of the text
};

std::wstring manyLines();
std::wstring paragraph();

constexpr Pose kPoses[] = {
    {L"two-lines", MB_YESNOCANCEL, kSaveText},
    {L"extended-1", OVOMB_EXTBUTTONS | 1, kReplaceText},
    {L"extended-2", OVOMB_EXTBUTTONS | 2, kReplaceText},
    {L"extended-3", OVOMB_EXTBUTTONS | 3, kReplaceText},
    {L"extended-4", OVOMB_EXTBUTTONS | 4, kReplaceText},
    {L"extended-5", OVOMB_EXTBUTTONS | 5, kReplaceText},
    {L"extended-icon", MB_RETRYCANCEL | OVOMB_EXTICONS | 0x30, L"The network drive is not responding."},
    {L"long-text", MB_OK | MB_ICONASTERISK, nullptr, &manyLines},
    {L"paragraph", MB_OK | MB_ICONASTERISK, nullptr, &paragraph},
    {L"help-default", MB_YESNO | MB_HELP | MB_DEFBUTTON3, L"Start without the plug-in?"},
    {L"wide-line", MB_OKCANCEL | MB_ICONEXCLAMATION,
     L"A message that is much longer than the screen is wide is wrapped between its words at two thirds of "
     L"the "
     L"width of the screen, so that the box stays readable and its buttons stay in reach of the pointer, "
     L"however "
     L"much the program has to say."},
    {L"stop", MB_ABORTRETRYIGNORE, L"The file could not be read."},
};

void fill(CComboBox& combo, std::span<const Choice> choices)
{
    for (const Choice& choice : choices)
        combo.AddString(choice.label);
    combo.SetCurSel(0);
}

UINT flagsOf(const CComboBox& combo, std::span<const Choice> choices)
{
    const int chosen = combo.GetCurSel();
    return chosen < 0 ? 0 : choices[static_cast<std::size_t>(chosen)].flags;
}

std::wstring manyLines()
{
    std::wstring text = L"The following files are not in the archive:";
    for (int i = 1; i <= 24; ++i)
        text += L"\nC:\\Plants\\Bed " + std::to_wstring(i) + L".plan";
    return text;
}

/// More than fifteen lines without a break, and in the middle an address that no line can hold.
std::wstring paragraph()
{
    std::wstring text;
    for (int i = 1; i <= 60; ++i) {
        text += L"Bed " + std::to_wstring(i) + L" was dug, sown and watered, and its label was written. ";
        if (i == 12)
            text += L"See http://garden.example.org/" + std::wstring(200, L'x') + L".html for the plan. ";
    }
    return text;
}

std::wstring answerName(int answer)
{
    switch (answer) {
    case IDOK:
        return L"IDOK";
    case IDCANCEL:
        return L"IDCANCEL";
    case IDABORT:
        return L"IDABORT";
    case IDRETRY:
        return L"IDRETRY";
    case IDIGNORE:
        return L"IDIGNORE";
    case IDYES:
        return L"IDYES";
    case IDNO:
        return L"IDNO";
    case IDYESTOALL:
        return L"IDYESTOALL";
    case IDNOTOALL:
        return L"IDNOTOALL";
    default:
        return std::to_wstring(answer);
    }
}

/// What moves down when the text gets more room.
constexpr int kBelowText[] = {
    IDC_BOX_CAPTION_LABEL,    IDC_BOX_BUTTONS_LABEL, IDC_BOX_BUTTONS, IDC_BOX_ICON_LABEL,   IDC_BOX_ICON,
    IDC_BOX_DEFAULT_LABEL,    IDC_BOX_DEFAULT,       IDC_BOX_HELP,    IDC_BOX_KEY_LABEL,    IDC_BOX_KEY,
    IDC_BOX_HELP_ID_LABEL,    IDC_BOX_HELP_ID,       IDC_BOX_SHOW,    IDC_BOX_RESULT_LABEL, IDC_BOX_RESULT,
    IDC_BOX_REMEMBERED_LABEL, IDC_BOX_REMEMBERED,    IDC_BOX_OWN,     IDC_BOX_FORGET,       IDC_BOX_PROGRESS};

constexpr wchar_t kFontsEntry[] = L"MissingFonts"; ///< of the answer that is kept

const UINT s_helpMessage = ::RegisterWindowMessageW(L"commdlg_help");

} // namespace

BEGIN_MESSAGE_MAP(MessageBoxPage, GalleryPage)
    ON_BN_CLICKED(IDC_BOX_SHOW, &MessageBoxPage::OnShow)
    ON_BN_CLICKED(IDC_BOX_OWN, &MessageBoxPage::OnOwnButtons)
    ON_BN_CLICKED(IDC_BOX_FORGET, &MessageBoxPage::OnForget)
    ON_BN_CLICKED(IDC_BOX_PROGRESS, &MessageBoxPage::OnProgress)
    ON_REGISTERED_MESSAGE(s_helpMessage, &MessageBoxPage::OnHelpAsked)
END_MESSAGE_MAP()

MessageBoxPage::MessageBoxPage()
    : GalleryPage(IDD_PAGE_MESSAGE_BOX)
    , m_text(kReplaceText)
    , m_key(L"GalleryBox")
{
    m_text.Replace(L"\n", L"\r\n");
}

MessageBoxPage::~MessageBoxPage() = default;

void MessageBoxPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_BOX_BUTTONS, m_buttonsCombo);
    DDX_Control(exchange, IDC_BOX_ICON, m_iconCombo);
    DDX_Control(exchange, IDC_BOX_DEFAULT, m_defaultCombo);
    DDX_Text(exchange, IDC_BOX_TEXT, m_text);
    DDX_Text(exchange, IDC_BOX_CAPTION, m_caption);
    DDX_Text(exchange, IDC_BOX_KEY, m_key);
    DDX_Text(exchange, IDC_BOX_HELP_ID, m_helpId);
    DDX_Check(exchange, IDC_BOX_HELP, m_help);
}

BOOL MessageBoxPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    fill(m_buttonsCombo, kButtons);
    fill(m_iconCombo, kIcons);
    fill(m_defaultCombo, kDefaults);
    m_buttonsCombo.SetCurSel(8);
    showRemembered();
    stretch(IDC_BOX_TEXT, {.growX = 100, .growY = 100});
    stretch(IDC_BOX_CAPTION, {.moveY = 100, .growX = 100});
    for (const int id : kBelowText)
        stretch(id, {.moveY = 100});
    return FALSE;
}

UINT MessageBoxPage::chosenType() const
{
    return flagsOf(m_buttonsCombo, kButtons) | flagsOf(m_iconCombo, kIcons) |
           flagsOf(m_defaultCombo, kDefaults) | (m_help ? MB_HELP : 0);
}

void MessageBoxPage::OnShow()
{
    if (!UpdateData())
        return;
    const int answer = OVOMessageBox(m_hWnd, m_text, m_caption, chosenType(), m_key, m_helpId);
    showAnswer(L"OVOMessageBox", answer);
}

void MessageBoxPage::showAnswer(const wchar_t* function, int answer)
{
    if (!m_hWnd)
        return; // another page was opened while the box was
    const std::wstring result = answerName(answer);
    SetDlgItemText(IDC_BOX_RESULT, result.c_str());
    log(function + (L" answered " + result));
    showRemembered();
}

void MessageBoxPage::OnOwnButtons()
{
    showAnswer(L"COVOMessageDialog", askAboutFonts(m_hWnd));
    if (AfxGetApp()->GetProfileInt(L"answers", kFontsEntry, 0))
        log(L"The answer is kept: the box is not shown again until the answers are forgotten");
}

int MessageBoxPage::askAboutFonts(HWND owner) const
{
    COVOMessageDialog box(
        owner, L"The document uses three fonts that are not installed.\nDo you want to replace them?",
        L"ovoui gallery", MB_ICONQUESTION);
    box.AddButton(IDYES, L"&Replace");
    box.AddButton(IDNO, L"Open &without them");
    box.AddButton(IDCANCEL, L"Cancel");
    box.SetDetails(
        L"Garden Sans, used in 12 places\nHedge Serif, used in 3 places\nTrellis Mono, used in 1 place");
    box.OfferNotToAsk(kFontsEntry);
    box.PressDefaultAfter(60);
    return box.DoModal();
}

void MessageBoxPage::OnForget()
{
    COVOMessageDialog::ForgetAnswers();
    log(L"All answers are forgotten");
}

void MessageBoxPage::OnProgress()
{
    constexpr ULONGLONG kSteps = 300;
    COVOProgressBox progress(GetParent()->m_hWnd, L"Watering the beds\u2026", L"ovoui gallery");
    ULONGLONG done = 0;
    while (done < kSteps && progress.Advance(done, kSteps)) {
        ::Sleep(10); // the work
        ++done;
    }
    if (m_hWnd)
        log(progress.IsCancelled()
                ? L"COVOProgressBox was cancelled after " + std::to_wstring(done) + L" steps"
                : L"COVOProgressBox came to its end");
}

void MessageBoxPage::showRemembered()
{
    const CString place = AfxGetApp()->GetProfileString(L"settings", m_key);
    SetDlgItemText(IDC_BOX_REMEMBERED, place.IsEmpty() ? L"Nothing for this key" : place.GetString());
}

LRESULT MessageBoxPage::OnHelpAsked(WPARAM, LPARAM)
{
    log(L"commdlg_help from the message box");
    return 0;
}

std::vector<std::wstring> MessageBoxPage::poses() const
{
    std::vector<std::wstring> names;
    for (const Pose& pose : kPoses)
        names.emplace_back(pose.name);
    names.emplace_back(L"own-buttons");
    names.emplace_back(L"progress");
    return names;
}

bool MessageBoxPage::pose(const std::wstring& name)
{
    if (name == L"own-buttons") {
        askAboutFonts(GetParent()->m_hWnd);
        return true;
    }
    if (name == L"progress") {
        m_posed = std::make_unique<COVOProgressBox>(GetParent()->m_hWnd, L"Watering the beds\u2026",
                                                    L"ovoui gallery");
        m_posed->Advance(5, 8);
        return true;
    }
    const auto* const pose = std::ranges::find(kPoses, name, &Pose::name);
    if (pose == std::end(kPoses))
        return false;
    const std::wstring text = pose->longText ? pose->longText() : pose->text;
    OVOMessageBox(GetParent()->m_hWnd, text.c_str(), L"ovoui gallery", pose->type, L"GalleryPose", 0);
    return true;
}
