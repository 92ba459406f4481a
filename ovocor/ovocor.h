/// Everything that the core library offers.
#pragma once

#include <ovocor/Angle.h>
#include <ovocor/Colour.h>
#include <ovocor/CsvParser.h>
#include <ovocor/DownloadControl.h>
#include <ovocor/EventList.h>
#include <ovocor/Handle.h>
#include <ovocor/IntCast.h>
#include <ovocor/Library.h>
#include <ovocor/OvoError.h>
#include <ovocor/Quark.h>
#include <ovocor/Text.h>
#include <ovocor/TextEncoding.h>
#include <ovocor/TextLineIterator.h>
#include <ovocor/TextReader.h>
#include <ovocor/Url.h>
#include <ovocor/Vector.h>
#include <ovocor/WinError.h>
