#pragma once

#include "base/message_box.h"

#include <windows.h>

namespace ornavel::win32 {

/// How a box of the system looks and behaves. With Word as the editor no window here is active during a send:
/// a box without an owner would open behind Word, so it is above everything, and keeps the thread's windows
/// away as an owner would be kept.
UINT box_style(Buttons buttons, HWND owner);

} // namespace ornavel::win32
