// The resources that the guide about tests takes for granted.
#pragma once

#define IDD_NAME 201
#define IDC_NAME 2001
