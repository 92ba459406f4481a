// What CThemeData answers, and what it draws.
#pragma once

#include "GalleryPage.h"

/// Colours and push-button backgrounds in every state, drawn as a control of a host would draw them.
class ThemeSamples : public CWnd
{
public:
    bool create(CWnd& parent);

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()
};

class ThemesPage : public GalleryPage
{
public:
    ThemesPage();
    ~ThemesPage() override;

protected:
    BOOL OnInitDialog() override;

private:
    ThemeSamples m_samples;
};
