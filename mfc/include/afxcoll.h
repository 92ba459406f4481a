// Collections of strings and pointers.
#pragma once

#include <afx/Collections.h>
