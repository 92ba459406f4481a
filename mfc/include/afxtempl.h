// Collections of any type.
#pragma once

#include <afx/Array.h>
#include <afx/List.h>
