/// The monkey's tree, and what makes its windows cheap.
#pragma once

#include <testkit/ImportPatch.h>

#include <ovoui/tree/MultiTreeCtrl.h>

class Monkey;

class MonkeyTree : public MultiTreeCtrl
{
public:
    explicit MonkeyTree(Monkey& monkey)
        : m_monkey(monkey)
    {
    }

    /// The tree view itself, past the control: what it answers is what there is.
    LRESULT ask(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return CTreeCtrl::DefWindowProc(message, wParam, lParam);
    }

    void reportError(const wchar_t* message) override;
    bool isCommandDisabled(unsigned id) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    Monkey& m_monkey;
};

/// The windows are hidden, so there is nothing to repaint. Wine asks its server all the same, once a row,
/// which takes half the time.
class StillWindows
{
public:
    StillWindows()
        : m_invalidate(L"comctl32.dll", "InvalidateRect", reinterpret_cast<void*>(&invalidate))
    {
    }

private:
    static BOOL WINAPI invalidate(HWND, const RECT*, BOOL) { return TRUE; }

    ovo::testkit::ImportPatch m_invalidate;
};
