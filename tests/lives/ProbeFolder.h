/// A folder of its own with the library, where a test can damage what a program finds.
#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

/// Has module_probe and what ovoui.dll needs in it; goes with the object.
class ProbeFolder
{
public:
    ProbeFolder();
    ~ProbeFolder();
    ProbeFolder(const ProbeFolder&) = delete;
    ProbeFolder& operator=(const ProbeFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

    /// Adds a file that lies beside this program.
    void add(const std::wstring& name) const;

    /// Runs a program of the folder, without boxes about errors; gives its exit code.
    DWORD run(const std::wstring& arguments, const std::wstring& program = L"module_probe.exe") const;

private:
    std::filesystem::path m_programs;
    std::filesystem::path m_path;
};

/// The full name of this program.
std::filesystem::path thisProgram();

/// Runs a command line in a folder and waits for its end; gives its exit code. Its output goes where that of
/// this program goes.
DWORD exitCodeOf(std::wstring line, const std::filesystem::path& folder);
