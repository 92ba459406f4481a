// What the two small extension modules of the tests export.
#pragma once

#include <afxdllx.h>

/// The functions are found by name: the modules are loaded and freed by the tests.
struct ExtensionProbe
{
    /// The record that the module's entry point has filled.
    AFX_EXTENSION_MODULE& (*record)();

    /// The class of an object that the module can make by name: CFirstProbe or CSecondProbe.
    CRuntimeClass* (*classRecord)();

    /// Registers a window class of the module's own; its name.
    LPCWSTR (*registerWndClass)();
};
