#pragma once

#include "forms/windows.h"

#include <windows.h>

namespace ornavel::win32 {

/// Shows the system's own dialog for files or folders. The full path that the user chose; nothing when the
/// user cancelled. Throws Failure when the system can't show it.
std::optional<Text> ask_for_path(HWND owner, const forms::PathQuestion& question);

} // namespace ornavel::win32
