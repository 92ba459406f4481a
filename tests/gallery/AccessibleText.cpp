#include "AccessibleText.h"

#include <testkit/AccessibleView.h>

#include <algorithm>
#include <cwctype>
#include <utility>

using ovo::testkit::AccessibleView;

namespace
{

constexpr LONG kToldStates[] = {STATE_SYSTEM_UNAVAILABLE, STATE_SYSTEM_SELECTED,  STATE_SYSTEM_PRESSED,
                                STATE_SYSTEM_CHECKED,     STATE_SYSTEM_MIXED,     STATE_SYSTEM_READONLY,
                                STATE_SYSTEM_HASPOPUP,    STATE_SYSTEM_FOCUSABLE, STATE_SYSTEM_EXPANDED,
                                STATE_SYSTEM_COLLAPSED,   STATE_SYSTEM_PROTECTED};

std::wstring roleText(LONG role)
{
    wchar_t text[100]{};
    ::GetRoleTextW(static_cast<DWORD>(role), text, 100);
    return text;
}

std::wstring statesText(LONG states)
{
    std::wstring told;
    for (const LONG state : kToldStates) {
        wchar_t text[100]{};
        if (states == -1 || !(states & state) || !::GetStateTextW(static_cast<DWORD>(state), text, 100))
            continue;
        told += told.empty() ? L", " : L" ";
        told += text;
    }
    return told;
}

std::wstring withoutDigits(const std::wstring& text)
{
    std::wstring masked;
    for (const wchar_t c : text) {
        if (!std::iswdigit(c))
            masked += c;
        else if (masked.empty() || masked.back() != L'#')
            masked += L'#';
    }
    return masked;
}

/// On one line.
std::wstring quoted(std::wstring text)
{
    std::replace(text.begin(), text.end(), L'\n', L' ');
    std::erase(text, L'\r');
    return L"\"" + text + L"\"";
}

std::wstring lineOf(const AccessibleView& seen, LONG child, bool ownAnswer)
{
    std::wstring line = roleText(seen.role(child));
    const std::wstring name = seen.name(child);
    if (!name.empty())
        line += L" " + quoted(ownAnswer ? name : withoutDigits(name));
    line += statesText(seen.state(child));
    if (!ownAnswer)
        return line;
    if (const std::wstring value = seen.value(child); !value.empty())
        line += L", value " + quoted(value);
    if (const std::wstring action = seen.action(child); !action.empty())
        line += L", action " + quoted(action);
    return line;
}

void readWindow(HWND window, const std::wstring& indent, std::vector<std::wstring>& lines)
{
    const AccessibleView seen(window);
    if (!seen)
        return;
    const bool ownAnswer = answersItself(window);
    lines.push_back(indent + lineOf(seen, CHILDID_SELF, ownAnswer));
    const long parts = ownAnswer ? seen.childCount() : 0;
    for (LONG part = 1; part <= parts; ++part)
        lines.push_back(indent + L"  " + lineOf(seen, part, true));
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (::IsWindowVisible(child))
            readWindow(child, indent + L"  ", lines);
}

/// How many lines the longest text has that is part of both, for every pair of beginnings.
std::vector<std::vector<int>> commonLengths(const std::vector<std::wstring>& a,
                                            const std::vector<std::wstring>& b)
{
    std::vector<std::vector<int>> common(a.size() + 1, std::vector<int>(b.size() + 1));
    for (std::size_t i = a.size(); i-- > 0;)
        for (std::size_t j = b.size(); j-- > 0;)
            common[i][j] =
                a[i] == b[j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    return common;
}

/// Collects lines, each heading before the first line under it.
class Difference
{
public:
    void pass(const std::wstring& line)
    {
        if (line.starts_with(L"="))
            m_heading = line + L"\n";
    }
    void add(wchar_t mark, const std::wstring& line)
    {
        m_text += std::exchange(m_heading, L"");
        m_text += mark + line + L"\n";
        pass(line);
    }
    const std::wstring& text() const { return m_text; }

private:
    std::wstring m_heading;
    std::wstring m_text;
};

} // namespace

bool answersItself(HWND window)
{
    const LRESULT answer = ::SendMessageW(window, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT));
    IAccessible* object = nullptr;
    if (answer == 0 ||
        FAILED(::ObjectFromLresult(answer, __uuidof(IAccessible), 0, reinterpret_cast<void**>(&object))))
        return false;
    object->Release();
    return true;
}

std::vector<std::wstring> readAloud(HWND parent)
{
    std::vector<std::wstring> lines;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (::IsWindowVisible(child))
            readWindow(child, L"", lines);
    return lines;
}

std::wstring readAloudAlone(HWND window)
{
    const AccessibleView seen(window);
    return seen ? lineOf(seen, CHILDID_SELF, answersItself(window)) : L"nothing";
}

std::wstring differenceOf(const std::vector<std::wstring>& expected, const std::vector<std::wstring>& read)
{
    const auto common = commonLengths(expected, read);
    Difference difference;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < expected.size() || j < read.size()) {
        const bool both = i < expected.size() && j < read.size();
        if (both && expected[i] == read[j]) {
            difference.pass(expected[i]);
            ++i;
            ++j;
        } else if (j == read.size() || (both && common[i + 1][j] >= common[i][j + 1])) {
            difference.add(L'-', expected[i++]);
        } else {
            difference.add(L'+', read[j++]);
        }
    }
    return difference.text();
}
