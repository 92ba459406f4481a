// Numbers of the test program's resources.
#pragma once

#define TESTDRAWING 401
