#include "ProjectPane.h"

#include "ImageStrip.h"
#include "NotificationNames.h"
#include "ProjectFolder.h"
#include "ProjectNode.h"
#include "resource.h"

namespace
{

constexpr ImageStrip kStrip{IDB_PROJECT_16, IDB_PROJECT_24, IDB_PROJECT_32};
constexpr DWORD kTreeStyle = TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_EDITLABELS |
                             TVS_SHOWSELALWAYS | TVS_INFOTIP | WS_CHILD | WS_VISIBLE | WS_TABSTOP;

} // namespace

BEGIN_MESSAGE_MAP(ProjectPane, CWnd)
    ON_NOTIFY(TVN_BEGINDRAGW, IDC_PROJECT_TREE, &ProjectPane::OnBeginDrag)
    ON_NOTIFY(TVN_BEGINRDRAGW, IDC_PROJECT_TREE, &ProjectPane::OnBeginDrag)
    ON_WM_SETFOCUS()
    ON_WM_SIZE()
END_MESSAGE_MAP()

ProjectPane::ProjectPane(ProjectItem::Pointer root)
    : m_root(std::move(root))
{
}

ProjectPane::~ProjectPane() = default;

bool ProjectPane::create(CWnd& parent, ProjectTree::Log log)
{
    const LPCTSTR windowClass = AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW));
    if (!CreateEx(WS_EX_CONTROLPARENT, windowClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(),
                  &parent, 0))
        return false;
    if (!m_tree.CreateEx(WS_EX_CLIENTEDGE, kTreeStyle, CRect(), this, IDC_PROJECT_TREE))
        return false;
    m_log = log;
    m_tree.setLog(std::move(log));
    createImages(m_images, kStrip, m_hWnd);
    m_tree.SetImageList(m_images.ImageList(), TVSIL_NORMAL);
    m_tree.SetFont(parent.GetFont());
    for (const ProjectItem::Pointer& item : m_root->items)
        m_tree.insert(new ProjectNode(item), *this, -1);
    m_tree.Expand(m_tree.GetRootItem(), TVE_EXPAND);
    return true;
}

DWORD ProjectPane::dragInto(COleDataObject& data, DWORD& effect, bool&, int) const
{
    return ProjectFolder(*m_root).dragInto(data, effect);
}

bool ProjectPane::dropInto(COleDataObject& data, DWORD effect, MultiTreeCtrl& tree, int zone)
{
    return ProjectFolder(*m_root).dropInto(data, effect, tree, *this, zone);
}

BOOL ProjectPane::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (m_log)
        m_log(describeNotify(*reinterpret_cast<const NMHDR*>(lParam)));
    return CWnd::OnNotify(wParam, lParam, result);
}

void ProjectPane::OnBeginDrag(NMHDR*, LRESULT* result)
{
    *result = 0;
    m_tree.dragSelection();
}

void ProjectPane::OnSetFocus(CWnd*)
{
    m_tree.SetFocus();
}

void ProjectPane::OnSize(UINT, int width, int height)
{
    if (m_tree.m_hWnd)
        m_tree.MoveWindow(0, 0, width, height);
}
