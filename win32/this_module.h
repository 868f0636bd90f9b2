#pragma once

#include <windows.h>

namespace ornavel::win32 {

/// The program or DLL that this code is a part of.
HINSTANCE this_module();

} // namespace ornavel::win32
