#pragma once

#include "base/files.h"

#include <functional>

namespace ornavel::workbench {

/// One person: what columns or attributes hold, by their names; of several values the first.
struct Person {
    std::size_t line = 0;
    std::vector<std::pair<Text, Text>> values;

    /// Names compare without case; nothing where there is none.
    const Text* find(TextView name) const;
};

/// Reads a list of people, one by one: entries of a directory where the name ends in ".ldif", else separated
/// values with names in the first row. Throws Failure, with file, line and column, for a list that can't be
/// read.
void read_people(const Files& files, TextView path, const std::function<void(const Person&)>& take);

} // namespace ornavel::workbench
