#pragma once

#include "forms/control.h"

namespace ornavel::forms {

/// A window of this size in the middle of a screen, at a whole pixel of a screen of 96 dots to the inch.
constexpr Place centred(Place window, const Place& screen) {
    constexpr int twips_per_pixel = 15;
    const auto middle = [](int room) { return room / 2 / twips_per_pixel * twips_per_pixel; };
    window.left = screen.left + middle(screen.width - window.width);
    window.top = screen.top + middle(screen.height - window.height);
    return window;
}

} // namespace ornavel::forms
