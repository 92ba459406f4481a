// Precompiled once and shared by every test program.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>
#include <afxext.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>
