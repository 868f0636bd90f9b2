#pragma once

#include "rehearsal/report/story.h"

namespace ornavel::rehearsal::report {

/// dressed_but: dressed, and there is something to look at. failed: an error ended the add-in's part.
enum class Fate { dressed, dressed_but, changed, untouched, held_back, failed };
constexpr Fate all_fates[] = {Fate::dressed,   Fate::dressed_but, Fate::changed,
                              Fate::untouched, Fate::held_back,   Fate::failed};

/// What became of the item of a send, by what was read and written: settings alone tell nothing.
Fate fate_of(const Story& story, const Send& send);
std::string_view name_of(Fate fate);

/// Whether this send put the stamp on its item.
bool is_stamped(const Story& story, const Send& send);
/// Whether the story ended as it expects, and alike in both plays.
bool is_as_expected(const Story& story);

/// The mail client's objects that the add-in still held at the end.
std::size_t held_by(const Story& story);

/// "a Word-written message from Outlook 2003"
std::string what_came_in(const Story& story, const Send& send);
/// "went out dressed in letterhead.htm with the signature short.htm, and stamped"
std::string what_happened(const Story& story, const Send& send);

/// “text”
std::string quoted(const std::string& text);
/// With a capital letter in front.
std::string capital(std::string words);
/// "0.84 ms"
std::string milliseconds(double duration);
/// "1 gate", "2 gates"
std::string counted(std::size_t number, std::string_view noun);

/// A box's title, or a form's caption.
std::string title_of_window(const Json& window);
/// A member of an item in the outcome; empty when it is not a text.
std::string text_of(const Json& item, const char* member);

} // namespace ornavel::rehearsal::report
