#include "win32/message_box.h"

namespace ornavel::win32 {

namespace {

UINT looks(Buttons buttons) {
    if (buttons == Buttons::ok) return MB_OK | MB_ICONINFORMATION;
    return MB_YESNO | MB_ICONQUESTION | (buttons == Buttons::risky_yes_no ? MB_DEFBUTTON2 : 0);
}

} // namespace

HWND owner_of_boxes() {
    const HWND active = GetActiveWindow();
    return IsWindowVisible(active) ? active : nullptr;
}

UINT box_style(Buttons buttons, HWND owner) {
    return looks(buttons) | MB_SETFOREGROUND | (owner ? 0 : MB_TASKMODAL | MB_TOPMOST);
}

} // namespace ornavel::win32
