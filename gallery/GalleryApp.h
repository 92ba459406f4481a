// The gallery program.
#pragma once

#include <afxwin.h>

#include <memory>

class GdiPlus;
class GalleryFrame;
struct CommandLine;
struct PageEntry;

class GalleryApp : public CWinApp
{
public:
    GalleryApp();
    ~GalleryApp() override;

    BOOL InitInstance() override;
    int ExitInstance() override;

    /// There is no help file: the log shows what would be opened.
    void HtmlHelp(DWORD_PTR data, UINT command = HH_HELP_CONTEXT) override;

private:
    BOOL end(int exitCode);
    BOOL show(const CommandLine& line, const PageEntry& first);

    std::unique_ptr<GdiPlus> m_gdiPlus;
    GalleryFrame* m_frame = nullptr; // deletes itself with its window
    int m_exitCode = 0;
};
