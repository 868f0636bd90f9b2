#pragma once

#include "base/text.h"

#include <windows.h>

namespace ornavel::rehearsal {

bool is_class(HWND window, std::wstring_view name);
DWORD style_of(HWND window);
Text text_of_window(HWND window);

} // namespace ornavel::rehearsal
