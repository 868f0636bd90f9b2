#pragma once

#include <windows.h>

namespace ornavel::win32 {

/// The grip in the lower right corner of a window that the user may size; it goes with the window.
class SizeGrip {
public:
    explicit SizeGrip(HWND owner);
    /// Stands in the corner where it is now; a maximised window has no use for a grip.
    void follow() const;

private:
    HWND owner_, grip_;
};

} // namespace ornavel::win32
