#include "GalleryApp.h"

#include "GalleryFrame.h"
#include "PageTable.h"
#include "resource.h"

#include <afxole.h>

#include <algorithm>
#include <cstdio>

using std::max;
using std::min;
#include <gdiplus.h>
#include <shellapi.h>

/// GDI+, which the library leaves to its host to start.
class GdiPlus
{
public:
    GdiPlus()
    {
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&m_token, &input, nullptr);
    }
    ~GdiPlus() { Gdiplus::GdiplusShutdown(m_token); }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

private:
    ULONG_PTR m_token = 0;
};

namespace
{

GalleryApp theApp;

constexpr char kUsage[] = "usage: gallery [--list] [--page NAME [--shot FILE.png]] [--shot-all FOLDER]\n";

void say(FILE* stream, const std::wstring& text)
{
    std::string narrow(text.begin(), text.end());
    std::fputs(narrow.c_str(), stream);
    std::fflush(stream);
}

/// "page/pose" taken apart.
std::pair<std::wstring, std::wstring> split(const std::wstring& name)
{
    const std::size_t slash = name.find(L'/');
    return slash == std::wstring::npos ? std::pair(name, std::wstring())
                                       : std::pair(name.substr(0, slash), name.substr(slash + 1));
}

} // namespace

GalleryApp::GalleryApp()
    : CWinApp(L"ovoui gallery")
{
}

GalleryApp::~GalleryApp() = default;

GalleryApp::Wishes GalleryApp::readCommandLine()
{
    Wishes wishes;
    int count = 0;
    LPWSTR* const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i) {
        const std::wstring word = arguments[i];
        std::wstring* value = word == L"--page"       ? &wishes.page
                              : word == L"--shot"     ? &wishes.shot
                              : word == L"--shot-all" ? &wishes.shotAll
                                                      : nullptr;
        if (word == L"--list")
            wishes.list = true;
        else if (!value)
            wishes.mistake = L"unknown argument: " + word;
        else if (++i < count)
            *value = arguments[i];
        else
            wishes.mistake = word + L" needs a value";
    }
    ::LocalFree(arguments);
    if (!wishes.page.empty() && !findPage(split(wishes.page).first))
        wishes.mistake = L"there is no page named " + wishes.page;
    if (!wishes.shot.empty() && wishes.page.empty())
        wishes.mistake = L"--shot needs --page";
    return wishes;
}

BOOL GalleryApp::InitInstance()
{
    const Wishes wishes = readCommandLine();
    if (!wishes.mistake.empty()) {
        say(stderr, wishes.mistake + L"\n");
        std::fputs(kUsage, stderr);
        return end(2);
    }
    if (wishes.list) {
        for (const PageEntry& page : pageTable())
            say(stdout, std::wstring(page.name) + L"\n");
        return end(0);
    }

    AfxOleInit();
    m_gdiPlus = std::make_unique<GdiPlus>();
    SetRegistryKey(L"ovoui");
    auto* frame = new GalleryFrame; // deletes itself with its window
    if (!frame->LoadFrame(IDR_MAIN_FRAME))
        return end(1);
    m_pMainWnd = frame;
    frame->openPage(wishes.page.empty() ? pageTable().front() : *findPage(split(wishes.page).first));
    frame->ShowWindow(m_nCmdShow);
    frame->UpdateWindow();
    if (wishes.shot.empty() && wishes.shotAll.empty())
        return TRUE;

    const bool taken = takePictures(*frame, wishes);
    return end(taken ? 0 : 1);
}

bool GalleryApp::takePictures(GalleryFrame& frame, const Wishes& wishes)
{
    if (!wishes.shotAll.empty())
        return frame.shootAll(wishes.shotAll);
    const auto [page, pose] = split(wishes.page);
    return frame.shoot(*findPage(page), pose, wishes.shot);
}

BOOL GalleryApp::end(int exitCode)
{
    m_exitCode = exitCode;
    return FALSE;
}

int GalleryApp::ExitInstance()
{
    const int code = CWinApp::ExitInstance();
    m_gdiPlus.reset();
    return m_exitCode ? m_exitCode : code;
}
