// Bars that are docked, dragged, made to float, saved and brought back.
#pragma once

#include "GalleryPage.h"

class DockingFrame;

class DockingPage : public GalleryPage
{
public:
    DockingPage();
    ~DockingPage() override;

    std::vector<std::wstring> poses() const override;
    bool pose(const std::wstring& name) override;

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnShow(UINT id);
    afx_msg void OnSave();
    afx_msg void OnRestore();
    afx_msg void OnOneRow();
    afx_msg void OnSides();
    afx_msg void OnFloat();
    afx_msg LRESULT OnIdleUpdate(WPARAM, LPARAM);
    DECLARE_MESSAGE_MAP()

private:
    DockingFrame* m_frame = nullptr; ///< a child of the page, which deletes itself
};
