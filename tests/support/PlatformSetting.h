/// The platform's switches, as a test sets them.
#pragma once

#include <ovoui/frame/Platform.h>

namespace ovo::testkit
{

/// While it lives, the switches may be set; then they are as before.
class PlatformSetting
{
public:
    PlatformSetting() = default;
    ~PlatformSetting() { ovoui::platform() = m_before; }
    PlatformSetting(const PlatformSetting&) = delete;
    PlatformSetting& operator=(const PlatformSetting&) = delete;

    ovoui::Platform* operator->() { return &ovoui::platform(); }

private:
    const ovoui::Platform m_before = ovoui::platform();
};

} // namespace ovo::testkit
