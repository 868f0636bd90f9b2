#pragma once

#include "rehearsal/report/story.h"

namespace ornavel::rehearsal::report {

enum class Fate { dressed, changed, untouched, held_back };

/// What became of the item of a send, by comparing it as it was with the outcome's.
Fate fate_of(const Story& story, const Send& send);
std::string_view name_of(Fate fate);

/// The mail client's objects that the add-in still held at the end.
std::size_t held_by(const Story& story);

/// "a Word-written message from Outlook 2003"
std::string what_came_in(const Story& story, const Send& send);
/// "went out dressed in letterhead.htm with the signature short.htm, and stamped"
std::string what_happened(const Story& story, const Send& send);

/// With a capital letter in front.
std::string capital(std::string words);
/// "0.84 ms"
std::string milliseconds(double duration);
/// "1 gate", "2 gates"
std::string counted(std::size_t number, std::string_view noun);

/// A member of an item in the outcome; empty when it is not a text.
std::string text_of(const Json& item, const char* member);

} // namespace ornavel::rehearsal::report
