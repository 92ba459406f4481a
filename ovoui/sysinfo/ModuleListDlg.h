/// A dialog with the loaded modules in a list that can be filtered and sorted.
///
///     CModuleListDlg(this).DoModal();
#pragma once

#include <ovoui/export.h>
#include <ovoui/frame/ModalDialog.h>
#include <ovoui/sysinfo/LoadedModule.h>

#include <afxcmn.h>

#include <memory>
#include <vector>

namespace ovoui::sysinfo
{
class StretchedControls;
struct ModuleOrder;
} // namespace ovoui::sysinfo

/// A click on a heading sorts, another one turns the order round; letters typed in the list lead to the next
/// name that begins with them; the filter leaves the modules that hold all of its words. Modules without a
/// version record or from other folders than the program's and the system's have a remark and another colour.
/// The user copies what the list shows as text with tabs, as a Markdown table or as JSON: the selected
/// modules, or all when none is selected. For that the host has called AfxOleInit.
class OVOUI_API CModuleListDlg : public COVOModalDialog
{
    DECLARE_DYNAMIC(CModuleListDlg)

public:
    /// `pParent` is disabled while the dialog is open; null for the main window.
    explicit CModuleListDlg(CWnd* pParent = nullptr);
    ~CModuleListDlg() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;

    afx_msg void OnColumnClick(NMHDR* header, LRESULT* result);
    afx_msg void OnCopyAs();
    afx_msg void OnCopyAsFormat(UINT id);
    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result);
    afx_msg void OnFilterChange();
    afx_msg void OnFindItem(NMHDR* header, LRESULT* result);
    afx_msg void OnGetDispInfo(NMHDR* header, LRESULT* result);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg void OnRefresh();
    afx_msg void OnSize(UINT type, int width, int height);
    DECLARE_MESSAGE_MAP()

private:
    void addColumns();
    void showVisible();
    void showOrder();
    std::vector<LoadedModule> chosen() const;

    CListCtrl m_list;
    CEdit m_filter;
    std::unique_ptr<ovoui::sysinfo::StretchedControls> m_controls;
    std::vector<LoadedModule> m_modules;
    std::vector<std::size_t> m_visible; // indices of modules, by row
    std::unique_ptr<ovoui::sysinfo::ModuleOrder> m_order;
};
