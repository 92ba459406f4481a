#include "TreePage.h"

#include "model/ProjectNode.h"
#include "resource.h"

#include <ovoui/lists/ListFinder.h>

namespace
{

constexpr wchar_t kSection[] = L"tree"; // of the profile
constexpr wchar_t kProjectView[] = L"ProjectView";
constexpr wchar_t kArchiveView[] = L"ArchiveView";

std::wstring savedView(const wchar_t* entry)
{
    return AfxGetApp()->GetProfileString(kSection, entry).GetString();
}

} // namespace

BEGIN_MESSAGE_MAP(TreePage, GalleryPage)
    ON_BN_CLICKED(IDC_TREE_READ_ONLY, &TreePage::OnReadOnly)
    ON_BN_CLICKED(IDC_TREE_EXTRAS, &TreePage::OnExtras)
    ON_EN_CHANGE(IDC_TREE_FILTER, &TreePage::OnFilter)
    ON_BN_CLICKED(IDC_TREE_SAVE_VIEW, &TreePage::OnSaveView)
    ON_BN_CLICKED(IDC_TREE_RESTORE_VIEW, &TreePage::OnRestoreView)
END_MESSAGE_MAP()

TreePage::TreePage()
    : GalleryPage(IDD_PAGE_TREE)
    , m_project(ProjectItem::makeProject())
    , m_archive(ProjectItem::makeArchive())
{
}

TreePage::~TreePage() = default;

void TreePage::DoDataExchange(CDataExchange* exchange)
{
    GalleryPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TREE_TEXT, m_text);
}

BOOL TreePage::OnInitDialog()
{
    GalleryPage::OnInitDialog();
    m_text.takeDrops();
    createPane(m_project, IDC_TREE_PROJECT);
    createPane(m_archive, IDC_TREE_ARCHIVE);
    stretch(IDC_TREE_PROJECT, {.growX = 50, .growY = 100});
    stretch(IDC_TREE_ARCHIVE_LABEL, {.moveX = 50});
    stretch(IDC_TREE_ARCHIVE, {.moveX = 50, .growX = 50, .growY = 100});
    for (const int id : {IDC_TREE_SAVE_VIEW, IDC_TREE_RESTORE_VIEW})
        stretch(id, {.moveX = 100, .moveY = 100});
    stretch(IDC_TREE_TEXT_LABEL, {.moveY = 100});
    stretch(IDC_TREE_TEXT, {.moveY = 100, .growX = 100});
    for (const int id : {IDC_TREE_READ_ONLY, IDC_TREE_EXTRAS, IDC_TREE_FILTER_LABEL})
        stretch(id, {.moveY = 100});
    stretch(IDC_TREE_FILTER, {.moveY = 100, .growX = 100});
    return FALSE;
}

void TreePage::createPane(ProjectPane& pane, int id)
{
    if (pane.create(*this, [this](const std::wstring& line) { log(line); }))
        replace(id, pane);
}

void TreePage::OnReadOnly()
{
    const bool readOnly = IsDlgButtonChecked(IDC_TREE_READ_ONLY) == BST_CHECKED;
    m_project.tree().setReadOnly(readOnly);
    m_archive.tree().setReadOnly(readOnly);
}

void TreePage::OnExtras()
{
    using Tree = MultiTreeCtrl;
    const bool on = IsDlgButtonChecked(IDC_TREE_EXTRAS) == BST_CHECKED;
    const unsigned all = Tree::RubberBand | Tree::AddRanges | Tree::FindAnywhere | Tree::CheckBoxes;
    for (ProjectPane* const pane : {&m_project, &m_archive})
        pane->tree().setExtras(on ? all : 0u);
    explainExtras(on);
}

/// What there is to try, since the trees look the same but for the boxes.
void TreePage::explainExtras(bool on) const
{
    if (!on)
        return log(L"setExtras(0): the trees are as a host gets them at first");
    log(L"RubberBand: drag a frame from beside the labels; Ctrl changes over what it meets");
    log(L"AddRanges: Ctrl+Shift with a click or an arrow key adds a range to the selection");
    log(L"FindAnywhere: type a part of a label; F3 goes to the next, Escape ends the search");
    log(L"CheckBoxes: a click or Space checks; Space takes all that is selected along");
}

/// Leaves what has the typed text in its name.
void TreePage::OnFilter()
{
    CString typed;
    GetDlgItemText(IDC_TREE_FILTER, typed);
    const std::wstring part = typed.GetString();
    const auto keeps = [part](const MultiTreeCtrl::Node& node) {
        return containsText(static_cast<const ProjectNode&>(node).item()->name, part);
    };
    for (ProjectPane* const pane : {&m_project, &m_archive})
        pane->tree().setFilter(part.empty() ? nullptr
                                            : std::function<bool(const MultiTreeCtrl::Node&)>(keeps));
}

// What the trees show, also when the page is opened again

void TreePage::OnSaveView()
{
    AfxGetApp()->WriteProfileString(kSection, kProjectView, m_project.tree().saveView().c_str());
    AfxGetApp()->WriteProfileString(kSection, kArchiveView, m_archive.tree().saveView().c_str());
    log(L"what is open and selected in the trees is in the profile");
}

void TreePage::OnRestoreView()
{
    m_project.tree().restoreView(savedView(kProjectView));
    m_archive.tree().restoreView(savedView(kArchiveView));
    log(savedView(kProjectView).empty() ? L"no view was saved" : L"the trees show what was saved");
}

// Pictures

std::vector<std::wstring> TreePage::poses() const
{
    return {L"selection", L"unfocused", L"drop", L"label", L"right-to-left", L"extras"};
}

void TreePage::selectSome(ProjectTree& tree)
{
    tree.selectPath(L"/Garden/Beds (sorted)/Herbs.plan");
    const HTREEITEM herbs = tree.GetSelectedItem();
    tree.selectRange(herbs, tree.GetNextItem(tree.GetNextItem(herbs, TVGN_NEXTVISIBLE), TVGN_NEXTVISIBLE));
}

/// Check boxes, and what a filter leaves.
bool TreePage::poseExtras(ProjectTree& tree)
{
    CheckDlgButton(IDC_TREE_EXTRAS, BST_CHECKED);
    OnExtras();
    for (auto node = tree.beginSelected(); node != tree.end(); ++node)
        dynamic_cast<ProjectNode&>(*node).setCheck(tree, true);
    m_archive.tree().Expand(m_archive.tree().GetRootItem(), TVE_EXPAND);
    SetDlgItemText(IDC_TREE_FILTER, L"e");
    return true;
}

bool TreePage::pose(const std::wstring& name)
{
    ProjectTree& tree = m_project.tree();
    selectSome(tree);
    tree.SetFocus();
    if (name == L"selection")
        return true;
    if (name == L"unfocused") {
        m_text.SetFocus();
        return true;
    }
    if (name == L"drop") {
        const HTREEITEM folder = m_archive.tree().GetRootItem();
        m_archive.tree().SelectDropTarget(folder);
        m_archive.tree().SetInsertMark(m_archive.tree().GetChildItem(folder), TRUE);
        return true;
    }
    if (name == L"extras")
        return poseExtras(tree);
    if (name == L"label")
        return tree.EditLabel(tree.GetSelectedItem()) != nullptr;
    if (name != L"right-to-left")
        return false;
    tree.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    tree.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    tree.Invalidate();
    return true;
}
