// Numbers of the test program's resources.
#pragma once

#define TESTSTRIP_24 301
#define TESTSTRIP_4 302
#define TESTSTRIP_OF_MODULE 303
