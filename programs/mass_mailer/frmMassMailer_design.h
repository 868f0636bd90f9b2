#pragma once

#include "forms/form.h"

namespace ornavel::mass_mailer::design {

inline constexpr TextView pause_caption = u"Pa&use", resume_caption = u"&Resume";

// The room for the controls that the window begins with, and the least in which nothing overlaps.
inline constexpr forms::Size first_room{11400, 8100}, least_room{9900, 6600};

std::vector<forms::Control> controls();

/// Places everything in the room that the form has: the lists and the page grow with it.
void arrange(forms::Form& form);

} // namespace ornavel::mass_mailer::design
