#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

/// What the `rehearse` program is asked for.
struct CommandLine {
    bool help = false;
    Binding binding = Binding::wine;
    std::string out;    ///< the file that takes the outcome; empty for the standard output
    std::string report; ///< the file that takes the page; empty for none
    std::vector<std::string> scenarios;
};

/// Reads the words behind the program's name. An option's value is the next word, or stands behind "=".
/// Throws Unusable for an option that there is not, and where no scenario is named; with --help nothing else
/// is looked at.
CommandLine read_command_line(const std::vector<std::string>& words);

/// What --help prints.
extern const char* const help_text;

} // namespace ornavel::rehearsal
