#pragma once

#include "base/clock.h"
#include "base/files.h"

#include <iosfwd>

namespace ornavel::workbench {

/// The machine that the program works on.
struct Machine {
    Files& files;
    const Clock& clock;
    std::ostream& out;
    std::ostream& err;
};

/// Does what the words behind the program's name ask for. Gives the exit code: 0 fine, 1 an error or warning
/// was found or an output could not be made, 2 wrong use or an input that is missing or unreadable. Never
/// throws.
int run(std::vector<std::string> words, const Machine& machine) noexcept;

} // namespace ornavel::workbench
