#include "win32/modality.h"

#include "base/errors.h"

namespace ornavel::win32 {

Modality::Modality(HWND but_one) : but_one_(but_one) {
    EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(this));
}

BOOL CALLBACK Modality::disable(HWND window, LPARAM pointer) {
    auto& self = *reinterpret_cast<Modality*>(pointer);
    // What is not shown is left alone: among it are the windows of input methods, which the form itself
    // needs.
    if (window == self.but_one_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) return TRUE;
    if (attempt([&] { self.disabled_.push_back(window); })) EnableWindow(window, FALSE);
    return TRUE;
}

Modality::~Modality() {
    for (const HWND window : disabled_) EnableWindow(window, TRUE);
}

} // namespace ornavel::win32
