#pragma once

#include "base/encoding.h"
#include "base/errors.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace ornavel {

/// The folder tests/, seen from build/PRESET/tests.
inline std::filesystem::path folder_of_tests() {
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    return program.parent_path().parent_path().parent_path().parent_path() / "tests";
}

/// Compares words with those of a file below tests/. Where they are meant to change, the file is written anew
/// while the environment has ORNAVEL_WRITE.
inline void expect_as_written(const std::string& words, const std::string& file) {
    const auto path = folder_of_tests() / file;
    if (std::getenv("ORNAVEL_WRITE")) std::ofstream(path) << words;
    std::ostringstream written;
    written << std::ifstream(path).rdbuf();
    EXPECT_EQ(words, written.str()) << "see " << path;
}

/// A line for each: where it stands, what the error log calls it, and its place within.
inline std::string in_lines(const std::vector<TrapName>& traps) {
    std::string lines;
    for (const TrapName& trap : traps)
        lines +=
            to_utf8(trap.sub_function) + " | " + to_utf8(trap.section) + " | " + to_utf8(trap.place) + "\n";
    return lines;
}

} // namespace ornavel
