#pragma once

#include "forms/form.h"

#include <span>

namespace ornavel::forms {

/// A window of this size in the middle of a screen, at a whole pixel of a screen of 96 dots to the inch.
Bounds centred(Bounds window, const Bounds& screen);

/// Where a window that was left at a place comes back: there, when each of its corners is on a screen; else
/// within the screen that is nearest to it, and not larger than that. Screens are without their taskbars, in
/// twips; those to the left of the first have negative coordinates. Without a screen the place is as good as
/// any.
Bounds reachable(const Bounds& window, std::span<const Bounds> screens);

/// Gives a form that is about to appear its place: in the middle of the main screen, or where it was left.
void place_on_screen(Form& form, const Bounds& main_screen, std::span<const Bounds> screens);

} // namespace ornavel::forms
