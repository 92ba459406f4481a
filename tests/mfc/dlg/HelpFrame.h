// A frame of a program that has help.
#pragma once

#include "TestFrame.h"

#include <testkit/TestApp.h>

class HelpFrame : public TestFrame
{
public:
    static constexpr UINT kHelpId = 200;

    static HelpFrame* make();

    bool handlesHelp = true;
    using CFrameWnd::m_nIDHelp;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override;

protected:
    DECLARE_MESSAGE_MAP()
};

/// The contexts that help was asked for, in order.
std::vector<unsigned long> asked();

/// Whether the message box in front shows this text.
bool boxShows(const wchar_t* text);
