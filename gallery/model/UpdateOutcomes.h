// The lists that the gallery's server can offer: one for each outcome of a check.
#pragma once

#include "model/ListServer.h"

#include <string>
#include <vector>

struct UpdateOutcome
{
    const wchar_t* name; ///< on the command line
    const wchar_t* title;
    std::string status;
    std::string body;
    ListServer::Manner manner;
};

/// For a program "Gallery" with the version 11.2.0.1234.
const std::vector<UpdateOutcome>& updateOutcomes();
