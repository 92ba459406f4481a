// What the benchmarks of lists share.
#pragma once

#include <ovoui/lists/ListCtrlEx.h>

#include <string>

constexpr int kBenchColumn = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;

/// A top-level window, shown.
class ListParent : public CWnd
{
public:
    ListParent();
    ~ListParent() override;

    /// In front of all others and painted.
    void bringForward();
};

/// "cell 000012 03"
std::wstring cellText(int row, int column);
