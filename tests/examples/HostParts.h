// Numbers of the resources that tests of what hosts begin with have.
#pragma once

#include <ovouires/resource.h>

#define IDD_HOST_PAGE 301
#define IDC_HOST_LABEL 311
#define IDC_HOST_EDIT 312
