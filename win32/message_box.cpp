#include "win32/message_box.h"

namespace ornavel::win32 {

UINT box_style(Buttons buttons, HWND owner) {
    const UINT looks = buttons == Buttons::yes_no ? MB_YESNO | MB_ICONQUESTION : MB_OK | MB_ICONINFORMATION;
    return looks | MB_SETFOREGROUND | (owner ? 0 : MB_TASKMODAL | MB_TOPMOST);
}

} // namespace ornavel::win32
