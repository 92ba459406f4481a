// One of the tests' extension modules, loaded while this lives.
#pragma once

#include "ExtensionProbe.h"

#include <gtest/gtest.h>

class LoadedExtension
{
public:
    explicit LoadedExtension(LPCWSTR file)
        : m_module(::LoadLibraryW(file))
    {
        if (!m_module)
            throw std::runtime_error("an extension module of the tests does not load");
        find("extensionRecord", probe.record);
        find("extensionClass", probe.classRecord);
        find("registerExtensionWndClass", probe.registerWndClass);
    }
    ~LoadedExtension() { unload(); }
    LoadedExtension(const LoadedExtension&) = delete;
    LoadedExtension& operator=(const LoadedExtension&) = delete;

    operator HINSTANCE() const { return m_module; }

    void unload()
    {
        if (m_module)
            ::FreeLibrary(std::exchange(m_module, nullptr));
    }

    ExtensionProbe probe;

private:
    template <class Function>
    void find(const char* name, Function& function)
    {
        function = reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(m_module, name)));
    }

    HINSTANCE m_module;
};

constexpr wchar_t kFirstExtension[] = L"mfc_core_first.dll";
constexpr wchar_t kSecondExtension[] = L"mfc_core_second.dll";
