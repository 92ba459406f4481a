// Internal to the file dialog: what it keeps between its calls.
#pragma once

#include <afxdlgs.h>

#include "../dlg/reportsexception.h"

#include <string>
#include <vector>

struct CFileDialog::Data
{
    /// How far the question to the user has come.
    enum class Stage
    {
        Closed,
        Open,
        Accepting, ///< inside OnFileNameOK
        Accepted
    };

    std::wstring defaultExtension;
    std::wstring filter;
    std::vector<wchar_t> file; ///< lpstrFile, unless the host has put a buffer of its own there
    wchar_t title[MAX_PATH]{}; ///< lpstrFileTitle
    Stage stage = Stage::Closed;
    int callDepth = 0;       ///< of the call into the system that shows the dialog
    bool startsCom = false;  ///< COM is to be ended with this object
    bool typesGiven = false; ///< the newer dialog takes file types only once
    bool initDone = false;
    bool stored = false; ///< m_ofn holds the result of the newer dialog
};

namespace afxdetail
{

/// Whether an exception waits for the call into the system that has this depth.
bool failedDuring(int callDepth);

} // namespace afxdetail
