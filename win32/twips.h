#pragma once

#include "forms/control.h"

#include <windows.h>

namespace ornavel::win32 {

/// Twips, of which an inch has 1440, as the screen's pixels and back.
class Scale {
public:
    /// The scale of the screen.
    static Scale of_screen();

    RECT pixels(const forms::Bounds& place) const;
    forms::Bounds twips(const RECT& pixels) const;
    /// The height of letters of this many points, as a font wants it.
    int font_height(int points) const { return -MulDiv(points, y_, 72); }

private:
    Scale(int dots_across, int dots_down) : x_(dots_across), y_(dots_down) {}
    int x_, y_;
};

} // namespace ornavel::win32
