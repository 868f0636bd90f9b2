#pragma once

#include "rehearsal/native/wine_play.h"

#include <iosfwd>

namespace ornavel::rehearsal::report {

/// Writes the page about scenarios that were played, and a line for each send to `lines`. The outcomes are
/// the real DLL's, in the order of the scenarios, as are the pictures of its forms; none where it took no
/// part. Throws Unusable where the page can't be written.
void write_report(const std::string& page, const std::vector<Loaded>& all, const std::vector<Json>& with_dll,
                  const std::vector<WindowPictures>& pictures, std::ostream& lines);

} // namespace ornavel::rehearsal::report
