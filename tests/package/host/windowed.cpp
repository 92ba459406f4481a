// A program outside the source tree that derives from what the package exports.
#include <ovoui/ovoui.h>

namespace
{

class HostNode : public MultiTreeCtrl::Node
{
public:
    void activate(MultiTreeCtrl&) override {}
    std::wstring text(const MultiTreeCtrl&) const override { return L"node"; }
    int closedImage() const override { return 0; }
    int openImage() const override { return 0; }
};

class HostTree : public MultiTreeCtrl
{
    void reportError(const wchar_t*) override {}
    bool isCommandDisabled(unsigned) override { return false; }
};

bool treeWorks()
{
    auto& frame = *new CFrameWnd; // deletes itself with its window
    HostTree tree;
    if (!frame.Create(nullptr, L"host") || !tree.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 99, 99), &frame, 1))
        return false;
    (new HostNode)->insert(tree, TVI_ROOT, TVI_LAST);
    tree.SelectItem(tree.GetRootItem());
    const bool works = tree.selectedPath() == L"/node";
    frame.DestroyWindow();
    return works;
}

bool imagesWork()
{
    CAlphaImageList images;
    return images.Create(16, 16, 4) && images.ImageList()->GetImageCount() == 0;
}

} // namespace

class HostApp : public CWinApp
{
    BOOL InitInstance() override
    {
        m_works = treeWorks() && imagesWork();
        return FALSE;
    }
    int ExitInstance() override { return m_works && OvoNonClientMetrics().cbSize == 500 ? 0 : 1; }

    bool m_works = false;
} theApp;
