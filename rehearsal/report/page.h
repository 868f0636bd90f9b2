#pragma once

#include "rehearsal/report/story.h"

namespace ornavel::rehearsal::report {

/// The whole report: one page that needs nothing outside itself. Its one script gives the frames their
/// heights, and no other may run.
std::string page(const std::vector<Story>& stories, const Origin& origin);

/// One story of it; the number counts from 1.
std::string story_section(const Story& story, std::size_t number);

/// What the add-in asked for and did in a story, folded away.
std::string journal_section(const Story& story);

/// What a story left in the registry and on the disk, folded away: values before and after, and files beside
/// those that they were made from.
std::string changes_section(const Story& story);

/// The windows that a story showed, and what the user did in them; empty where it showed none.
std::string windows_section(const Story& story);

/// A form that no picture was taken of, drawn as a table of what it shows; empty where that is nothing.
std::string window_table(const Json& form);

extern const char* const style_sheet;
/// Gives each frame the height of what it shows; the page's policy lets it run by its hash.
extern const char* const measuring_script;
extern const char* const measuring_script_hash;

} // namespace ornavel::rehearsal::report
