#include "GalleryApp.h"

#include "CommandLine.h"
#include "GalleryFrame.h"
#include "GdiPlus.h"
#include "PageTable.h"
#include "Shooting.h"
#include "resource.h"

#include <ovoui/frame/Language.h>

#include <afxole.h>

#include <algorithm>
#include <cstdio>

namespace
{

GalleryApp theApp;

constexpr wchar_t kUsage[] =
    L"usage: gallery [--rtl] [--language TAG] [--list] [--page NAME[/POSE] [--shot FILE.png]] [--shot-all "
    L"FOLDER]\n";

void say(FILE* stream, const std::wstring& text)
{
    const std::string narrow(text.begin(), text.end());
    std::fputs(narrow.c_str(), stream);
    std::fflush(stream);
}

/// The tag is that of the language alone, without a region; an empty one leaves the user's language.
bool useLanguage(const std::wstring& tag)
{
    if (tag.empty())
        return true;
    const auto languages = textLanguages();
    return std::ranges::any_of(
        languages, [&](LANGID language) { return setTextLanguage(language) && textLanguage() == tag; });
}

void listPages()
{
    for (const PageEntry& page : pageTable())
        say(stdout, std::wstring(page.name) + L"\n");
}

} // namespace

GalleryApp::GalleryApp()
    : CWinApp(L"ovoui gallery")
{
}

GalleryApp::~GalleryApp() = default;

BOOL GalleryApp::InitInstance()
{
    CommandLine line = CommandLine::parse(CommandLine::ownArguments());
    if (!useLanguage(line.language))
        line.mistake = L"there are no texts in the language " + line.language;
    const PageEntry* const page = line.page.empty() ? &pageTable().front() : findPage(line.page);
    if (!page)
        line.mistake = L"there is no page named " + line.page;
    if (!line.mistake.empty()) {
        say(stderr, line.mistake + L"\n" + kUsage);
        return end(2);
    }
    if (line.list) {
        listPages();
        return end(0);
    }
    return show(line, *page);
}

BOOL GalleryApp::show(const CommandLine& line, const PageEntry& first)
{
    AfxOleInit();
    m_gdiPlus = std::make_unique<GdiPlus>();
    SetRegistryKey(L"ovoui");
    if (line.rtl)
        ::SetProcessDefaultLayout(LAYOUT_RTL); // for windows without an owner; those inside inherit it
    m_frame = new GalleryFrame;
    if (!m_frame->LoadFrame(IDR_MAIN_FRAME))
        return end(1);
    m_pMainWnd = m_frame;
    if (!line.wantsPictures()) // these look the same every time
        m_frame->restoreBars();
    m_frame->openPage(first);
    m_frame->ShowWindow(m_nCmdShow);
    m_frame->UpdateWindow();
    if (!line.wantsPictures())
        return TRUE;
    return end(takePictures(*m_frame, line) ? 0 : 1);
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

void GalleryApp::HtmlHelp(DWORD_PTR data, UINT)
{
    if (m_frame)
        m_frame->logLine(L"HtmlHelp opens page " + std::to_wstring(data));
}
