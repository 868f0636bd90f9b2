#pragma once

#include "base/clock.h"
#include "base/files.h"

namespace ornavel::workbench {

/// The disks of the machine that the program runs on, by the paths of that machine; with "/" and "\" alike.
Files& machine_files();

/// The machine's own clock.
const Clock& machine_clock();

/// The words behind the program's name, in UTF-8.
std::vector<std::string> words_of(int count, char** words);

} // namespace ornavel::workbench
