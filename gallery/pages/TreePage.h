// Two multi-selection trees of a project, and a text to drag to.
#pragma once

#include "GalleryPage.h"
#include "model/ProjectPane.h"
#include "model/TextDropEdit.h"

class TreePage : public GalleryPage
{
public:
    TreePage();
    ~TreePage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnInitDialog() override;
    afx_msg void OnReadOnly();
    afx_msg void OnExtras();
    afx_msg void OnFilter();
    afx_msg void OnSaveView();
    afx_msg void OnRestoreView();
    DECLARE_MESSAGE_MAP()

private:
    void createPane(ProjectPane& pane, int id);
    void selectSome(ProjectTree& tree);
    bool poseExtras(ProjectTree& tree);
    void explainExtras(bool on) const;

    ProjectPane m_project;
    ProjectPane m_archive;
    TextDropEdit m_text;
};
