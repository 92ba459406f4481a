// The gallery program.
#pragma once

#include <afxwin.h>

#include <memory>
#include <string>
#include <vector>

class GdiPlus;
class GalleryFrame;

class GalleryApp : public CWinApp
{
public:
    GalleryApp();
    ~GalleryApp() override;

    BOOL InitInstance() override;
    int ExitInstance() override;

private:
    /// What the command line asks for.
    struct Wishes
    {
        bool list = false;
        std::wstring page;    ///< with "/pose" behind it, one of its poses
        std::wstring shot;    ///< a file
        std::wstring shotAll; ///< a folder
        std::wstring mistake; ///< what is wrong with the command line
    };

    static Wishes readCommandLine();
    bool takePictures(GalleryFrame& frame, const Wishes& wishes);
    BOOL end(int exitCode);

    std::unique_ptr<GdiPlus> m_gdiPlus;
    int m_exitCode = 0;
};
