#pragma once

#include "rehearsal/report/story.h"

namespace ornavel::rehearsal::report {

/// The whole report: one page that needs nothing outside itself and no scripts.
std::string page(const std::vector<Story>& stories);

/// One story of it; the number counts from 1.
std::string story_section(const Story& story, std::size_t number);

/// What the add-in asked for and did in a story, folded away.
std::string journal_section(const Story& story);

extern const char* const style_sheet;

} // namespace ornavel::rehearsal::report
