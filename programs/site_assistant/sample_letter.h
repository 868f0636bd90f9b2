#pragma once

#include "programs/program.h"

namespace ornavel::programs {

/// A short message as the add-in would dress it with these settings. It is composed as a preview is: nothing
/// is asked and nothing written but settings. A template that is too large to be shown gives a page that says
/// so.
Text sample_letter(settings::Store& settings, const Files& files, const Clock& clock);

} // namespace ornavel::programs
