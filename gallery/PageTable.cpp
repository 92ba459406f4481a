#include "PageTable.h"

#include "pages/ColourPickerPage.h"
#include "pages/ComboPage.h"
#include "pages/DockingPage.h"
#include "pages/FilesPage.h"
#include "pages/GeometryPage.h"
#include "pages/ImagesPage.h"
#include "pages/ListsPage.h"
#include "pages/MessageBoxPage.h"
#include "pages/ShadedTabsPage.h"
#include "pages/SlidersPage.h"
#include "pages/SystemInfoPage.h"
#include "pages/ThemesPage.h"
#include "pages/ToolBarPage.h"
#include "pages/TreePage.h"
#include "pages/UpdatesPage.h"

namespace
{

template <class Page>
std::shared_ptr<GalleryPage> make()
{
    return std::make_shared<Page>();
}

} // namespace

const std::vector<PageEntry>& pageTable()
{
    static const std::vector<PageEntry> pages{
        {L"messagebox", L"Message box",
         L"OVOMessageBox: more buttons and icons. COVOMessageDialog: your own, with details. "
         L"COVOProgressBox.",
         &make<MessageBoxPage>, PageGroup::Frame},
        {L"geometry", L"Geometry and keys",
         L"GetWorkArea and EnsureRectVisible keep rectangles on the screen; PreTranslateTabControl pages by "
         L"keyboard.",
         &make<GeometryPage>, PageGroup::Frame},
        {L"themes", L"Themes", L"CThemeData: colours and button backgrounds, with visual styles or without.",
         &make<ThemesPage>, PageGroup::Frame},
        {L"images", L"Alpha images",
         L"CAlphaImageList, CImageStrips: images with alpha, scaled or drawn (SvgStrip). CAlphaImageButton.",
         &make<ImagesPage>, PageGroup::Frame},
        {L"tree", L"Multi-selection tree",
         L"MultiTreeCtrl: select several, drag, rename, delete, copy and paste; filter, check and find on "
         L"request.",
         &make<TreePage>, PageGroup::Lists},
        {L"toolbars", L"Toolbars",
         L"CVantorToolBar: hold a button and choose from its flyout; edits and combo boxes in the bar.",
         &make<ToolBarPage>, PageGroup::Bars},
        {L"sliders", L"Sliders",
         L"CSliderButton drops a slider for a number; CRoundSlider, CWheelSlider and CDialSlider turn a box.",
         &make<SlidersPage>, PageGroup::Values},
        {L"lists", L"Lists",
         L"COVOListCtrlEx: rows with colours and cut texts. Headings sort and can be moved, typing finds, "
         L"Ctrl+C copies.",
         &make<ListsPage>, PageGroup::Lists},
        {L"combo", L"Combo box",
         L"COVOComboBox completes what is typed, and accepts it or brings back what was there before.",
         &make<ComboPage>, PageGroup::Lists},
        {L"files", L"Files",
         L"COVOFileDialog: one class for both of the system's file dialogs; functions that ask for files and "
         L"folders.",
         &make<FilesPage>},
        {L"colourpicker", L"Colour picker",
         L"ColPickerDlg: a ring of hues, a triangle, three colour models. CColourButton, CColourDropper.",
         &make<ColourPickerPage>},
        {L"shadedtabs", L"Shaded tabs",
         L"CShadedTabCtrl: the page of a tab control shows through the controls on it.",
         &make<ShadedTabsPage>, PageGroup::Frame},
        {L"docking", L"Docking",
         L"Drag bars to the sides or beside the frame, size them, double-click grippers and captions; "
         L"CVantorToolWnd.",
         &make<DockingPage>, PageGroup::Bars},
        {L"sysinfo", L"System information",
         L"CSystemInfoDlg, CModuleListDlg: the loaded modules and the machine, to be copied for a support "
         L"case.",
         &make<SystemInfoPage>},
        {L"updates", L"Updates",
         L"checkForUpdates reads a list on the web; here a server inside the gallery offers every outcome.",
         &make<UpdatesPage>},
    };
    return pages;
}

const PageEntry* findPage(std::wstring_view name)
{
    for (const PageEntry& page : pageTable())
        if (name == page.name)
            return &page;
    return nullptr;
}
