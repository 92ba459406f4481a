#include "GalleryScene.h"

#include "Resolution.h"
#include "resource.h"

#include <gtest/gtest.h>

GalleryScene::GalleryScene(From from)
    : m_frame(new GalleryFrame)
{
    ::SetProcessDefaultLayout(from == From::Right ? LAYOUT_RTL : 0);
    EXPECT_TRUE(m_frame->LoadFrame(IDR_MAIN_FRAME));
    m_handle = m_frame->m_hWnd;
    AfxGetApp()->m_pMainWnd = m_frame;
    m_frame->openPage(pageTable().front());
    ovo::testkit::present(*m_frame);
}

GalleryScene::~GalleryScene()
{
    if (isOpen())
        m_frame->DestroyWindow();
    AfxGetApp()->m_pMainWnd = nullptr;
    ::SetProcessDefaultLayout(0);
}

void GalleryScene::open(const wchar_t* page)
{
    m_frame->openPage(*findPage(page));
}

void GalleryScene::grow(int width, int height)
{
    CRect frame;
    m_frame->GetWindowRect(&frame);
    frame.right += scaled(m_handle, width);
    frame.bottom += scaled(m_handle, height);
    m_frame->MoveWindow(&frame);
}

HWND GalleryScene::control(int id)
{
    return ::GetDlgItem(page(), id);
}

std::vector<HWND> GalleryScene::controls()
{
    std::vector<HWND> found;
    for (HWND child = ::GetWindow(page(), GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (::IsWindowVisible(child))
            found.push_back(child);
    return found;
}

CRect GalleryScene::placeOnPage(HWND child)
{
    CRect rect;
    ::GetWindowRect(child, &rect);
    page().ScreenToClient(&rect);
    return rect;
}

CSize GalleryScene::pageSize()
{
    CRect client;
    page().GetClientRect(&client);
    return client.Size();
}
