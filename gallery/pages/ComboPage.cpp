#include "ComboPage.h"

#include "resource.h"

BEGIN_MESSAGE_MAP(ComboPage, GalleryPage)
    ON_BN_CLICKED(IDC_COMBO_COMPLETE, &ComboPage::OnFlags)
    ON_BN_CLICKED(IDC_COMBO_ANY_TEXT, &ComboPage::OnFlags)
    ON_BN_CLICKED(IDC_COMBO_NOTIFY, &ComboPage::OnFlags)
    ON_CBN_SELENDOK(IDC_COMBO_PLANT, &ComboPage::OnAccepted)
    ON_CBN_SELENDCANCEL(IDC_COMBO_PLANT, &ComboPage::OnRejected)
END_MESSAGE_MAP()

namespace
{

constexpr int kLines = 12;

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
}

BOOL ComboPage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    for (const wchar_t* plant : kPlants)
        m_plant.AddString(plant);
    resizeCombo(m_plant, kLines);
    m_plant.SetMinVisibleItems(kLines); // with visual styles it is 30 otherwise
    m_plant.SetCurSel(0);
    CheckDlgButton(IDC_COMBO_COMPLETE, BST_CHECKED);
    OnFlags();
    stretch(IDC_COMBO_RESULT, {.growX = 100});
    stretch(IDC_COMBO_OTHER, {.growX = 50});
    return FALSE;
}

void ComboPage::OnFlags()
{
    m_plant.AutoComplete(IsDlgButtonChecked(IDC_COMBO_COMPLETE) == BST_CHECKED);
    m_plant.ConfirmAnyText(IsDlgButtonChecked(IDC_COMBO_ANY_TEXT) == BST_CHECKED);
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
    return {L"completion", L"open"};
}

bool ComboPage::pose(const std::wstring& name)
{
    m_plant.SetFocus();
    m_plant.SetWindowText(L"");
    CWnd* const edit = m_plant.GetWindow(GW_CHILD);
    for (const wchar_t letter : {L'L', L'a'})
        edit->SendMessage(WM_CHAR, letter, 1);
    if (name == L"open")
        m_plant.ShowDropDown();
    return name == L"completion" || name == L"open";
}
