/// The library's controls, each with a life to live: created, shown, used and destroyed.
#pragma once

#include <afxwin.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

struct Life
{
    const char* name;
    std::function<void(CWnd& parent)> live;
    /// The same without the library, for windows that the system itself does not clean up.
    std::function<void(CWnd& parent)> platform{};
};

void PrintTo(const Life& life, std::ostream* out);

/// Lives a life; gives a complaint about an exception that is not one of the documented kinds.
std::string liveOnce(const Life& life, CWnd& parent);

const std::vector<Life>& lives();

/// Those that show dialogs of the system.
const std::vector<Life>& livesOfFileDialogs();
