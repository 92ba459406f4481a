#include "ComboPage.h"

#include "ImageStrip.h"
#include "model/ColourTable.h"
#include "resource.h"

BEGIN_MESSAGE_MAP(ComboPage, GalleryPage)
    ON_BN_CLICKED(IDC_COMBO_COMPLETE, &ComboPage::OnFlags)
    ON_BN_CLICKED(IDC_COMBO_ANY_TEXT, &ComboPage::OnFlags)
    ON_BN_CLICKED(IDC_COMBO_NOTIFY, &ComboPage::OnFlags)
    ON_BN_CLICKED(IDC_COMBO_INSIDE, &ComboPage::OnFlags)
    ON_CBN_SELENDOK(IDC_COMBO_PLANT, &ComboPage::OnAccepted)
    ON_CBN_SELENDCANCEL(IDC_COMBO_PLANT, &ComboPage::OnRejected)
END_MESSAGE_MAP()

namespace
{

constexpr int kLines = 12;
constexpr int kUsed = 5;

/// As the user types: the control sees a key on its way, and then the field gets it.
void type(COVOComboBox& combo, const std::wstring& text)
{
    CWnd* const edit = combo.GetWindow(GW_CHILD);
    for (const wchar_t letter : text) {
        MSG key{edit->m_hWnd, WM_CHAR, letter, 1, 0, {}};
        combo.PreTranslateMessage(&key);
        edit->SendMessage(WM_CHAR, letter, 1);
    }
}

constexpr const wchar_t* kPlants[] = {L"Acanthus",   L"Agapanthus", L"Allium",     L"Anemone",
                                      L"Aster",      L"Begonia",    L"Bellflower", L"Bergenia",
                                      L"Bluebell",   L"Camellia",   L"Campion",    L"Carnation",
                                      L"Clematis",   L"Columbine",  L"Cornflower", L"Crocus",
                                      L"Cyclamen",   L"Daffodil",   L"Dahlia",     L"Daisy",
                                      L"Delphinium", L"Foxglove",   L"Fuchsia",    L"Gentian",
                                      L"Geranium",   L"Gladiolus",  L"Hellebore",  L"Hyacinth",
                                      L"Iris",       L"Lavender",   L"Lily",       L"lily of the valley",
                                      L"Lupin",      L"Marigold",   L"Peony",      L"Poppy",
                                      L"Primrose",   L"Rose",       L"rosemary",   L"Snowdrop",
                                      L"Sunflower",  L"Thyme",      L"Tulip",      L"Verbena",
                                      L"Violet",     L"Wisteria",   L"Yarrow",     L"Zinnia"};

} // namespace

ComboPage::ComboPage()
    : GalleryPage(IDD_PAGE_COMBO)
{
}

ComboPage::~ComboPage() = default;

void ComboPage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_COMBO_PLANT, m_plant);
    DDX_Control(exchange, IDC_COMBO_USED, m_used);
    DDX_Control(exchange, IDC_COMBO_COLOUR, m_colour);
    DDX_Control(exchange, IDC_COMBO_PART, m_part);
}

BOOL ComboPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    for (const wchar_t* plant : kPlants)
        m_plant.AddString(plant);
    resizeCombo(m_plant, kLines);
    m_plant.SetMinVisibleItems(kLines); // with visual styles it is 30 otherwise
    m_plant.SetCurSel(0);
    m_used.ConfirmAnyText(true);
    m_used.KeepHistory(L"Combo", L"Used", kUsed);
    m_used.CueText(L"Something to be kept");
    fillColours();
    fillParts();
    CheckDlgButton(IDC_COMBO_COMPLETE, BST_CHECKED);
    OnFlags();
    stretch(IDC_COMBO_RESULT, {.growX = 100});
    stretch(IDC_COMBO_OTHER, {.growX = 50});
    stretch(IDC_COMBO_EXPLANATION, {.growX = 100});
    return FALSE;
}

void ComboPage::fillColours()
{
    m_colour.SearchInside(true);
    m_colour.CueText(L"A colour");
    for (const auto& [name, entry] : namedColours())
        m_colour.SetItemColour(m_colour.AddString(name.c_str()), entry);
    resizeCombo(m_colour, kLines);
    m_colour.SetMinVisibleItems(kLines);
}

/// In the order of the strip.
void ComboPage::fillParts()
{
    createImages(m_images, {IDB_PROJECT_16, IDB_PROJECT_24, IDB_PROJECT_32}, m_hWnd);
    m_part.SetImageList(m_images.ImageList());
    int image = 0;
    for (const wchar_t* part : {L"Folder", L"Open folder", L"Plan", L"Locked plan", L"Damaged plan", L"Link"})
        m_part.SetItemImage(m_part.AddString(part), image++);
    m_part.CueText(L"A part of a project");
}

void ComboPage::OnFlags()
{
    m_plant.AutoComplete(IsDlgButtonChecked(IDC_COMBO_COMPLETE) == BST_CHECKED);
    m_plant.ConfirmAnyText(IsDlgButtonChecked(IDC_COMBO_ANY_TEXT) == BST_CHECKED);
    m_plant.SearchInside(IsDlgButtonChecked(IDC_COMBO_INSIDE) == BST_CHECKED);
    m_plant.NotifyEditReturn(IsDlgButtonChecked(IDC_COMBO_NOTIFY) == BST_CHECKED);
}

void ComboPage::OnAccepted()
{
    CString text;
    m_plant.GetWindowText(text);
    SetDlgItemText(IDC_COMBO_RESULT, CString(L"accepted: ") + text);
}

void ComboPage::OnRejected()
{
    CString text;
    m_plant.GetWindowText(text);
    SetDlgItemText(IDC_COMBO_RESULT, CString(L"unchanged: ") + text);
}

// Pictures

std::vector<std::wstring> ComboPage::poses() const
{
    return {L"completion", L"open", L"inside", L"colours", L"images"};
}

bool ComboPage::pose(const std::wstring& name)
{
    if (name == L"images") {
        m_part.SetFocus();
        m_part.SetCurSel(1);
        m_part.ShowDropDown();
        return true;
    }
    if (name == L"inside" || name == L"colours") {
        COVOComboBox& combo = name == L"inside" ? m_plant : m_colour;
        combo.SetFocus();
        combo.SetWindowText(L"");
        combo.SearchInside(false); // a long list that shrinks would leave its traces in the picture
        type(combo, name == L"inside" ? L"e" : L"a");
        combo.SearchInside(true);
        type(combo, name == L"inside" ? L"l" : L"m");
        CheckDlgButton(IDC_COMBO_INSIDE, name == L"inside" ? BST_CHECKED : BST_UNCHECKED);
        return true;
    }
    m_plant.SetFocus();
    m_plant.SetWindowText(L"");
    type(m_plant, L"La");
    if (name == L"open")
        m_plant.ShowDropDown();
    return name == L"completion" || name == L"open";
}
