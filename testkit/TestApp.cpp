#include "TestApp.h"

#include <utility>

namespace ovo::testkit
{

TestApp& TestApp::instance()
{
    return *static_cast<TestApp*>(AfxGetApp());
}

void TestApp::answerBoxes(std::initializer_list<int> results)
{
    m_results.assign(results);
}

void TestApp::forget()
{
    m_boxes.clear();
    m_helps.clear();
    m_results.clear();
    m_showsBoxes = false;
    onBox = nullptr;
}

int TestApp::DoMessageBox(LPCTSTR text, UINT type, UINT helpId)
{
    m_boxes.push_back({text, type, helpId});
    if (const auto called = onBox) // which may put another one in its place
        called();
    if (m_showsBoxes)
        return CWinApp::DoMessageBox(text, type, helpId);
    if (m_results.empty())
        return IDOK;
    const int result = m_results.front();
    m_results.pop_front();
    return result;
}

void TestApp::HtmlHelp(DWORD_PTR data, UINT command)
{
    m_helps.push_back({data, command});
}

void TestApp::WinHelp(DWORD_PTR data, UINT command)
{
    m_helps.push_back({data, command});
}

} // namespace ovo::testkit
