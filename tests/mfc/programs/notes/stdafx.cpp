// stdafx.cpp : source of the precompiled header
#include "stdafx.h"
