#pragma once

#include "base/message_box.h"

#include <windows.h>

namespace ornavel::win32 {

/// The window in front of which a box or a form appears: the active one of this thread, unless it is unseen,
/// as the tray icon's is; then there is none.
HWND owner_of_boxes();

/// How a box of the system looks and behaves. With Word as the editor no window here is active during a send:
/// a box without an owner would open behind Word, so it is above everything, and keeps the thread's windows
/// away as an owner would be kept.
UINT box_style(Buttons buttons, HWND owner);

} // namespace ornavel::win32
