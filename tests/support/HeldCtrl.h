/// For tests that send keys: what the control looks up is the thread's own state of the keyboard.
#pragma once

#include <windows.h>

/// Ctrl as the thread sees it while the object lives: held or not, and no other key is.
class HeldCtrl
{
public:
    explicit HeldCtrl(bool held = true)
    {
        BYTE keys[256]{};
        ::GetKeyboardState(m_before);
        keys[VK_CONTROL] = held ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
    ~HeldCtrl() { ::SetKeyboardState(m_before); }
    HeldCtrl(const HeldCtrl&) = delete;
    HeldCtrl& operator=(const HeldCtrl&) = delete;

private:
    BYTE m_before[256];
};
