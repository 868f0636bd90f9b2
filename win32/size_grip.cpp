#include "win32/size_grip.h"

namespace ornavel::win32 {

SizeGrip::SizeGrip(HWND owner)
    : owner_(owner), grip_(CreateWindowExW(0, L"SCROLLBAR", nullptr, WS_CHILD | SBS_SIZEGRIP, 0, 0, 0, 0,
                                           owner, nullptr, GetModuleHandleW(nullptr), nullptr)) {}

void SizeGrip::follow() const {
    RECT room;
    GetClientRect(owner_, &room);
    const int width = GetSystemMetrics(SM_CXVSCROLL), height = GetSystemMetrics(SM_CYHSCROLL);
    MoveWindow(grip_, room.right - width, room.bottom - height, width, height, TRUE);
    ShowWindow(grip_, IsZoomed(owner_) ? SW_HIDE : SW_SHOWNA);
}

} // namespace ornavel::win32
