#pragma once

#include "base/clock.h"
#include "workbench/drives.h"
#include "workbench/places.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <nlohmann/json.hpp>
#include <ostream>

namespace ornavel::workbench {

using Json = nlohmann::ordered_json;

/// What a subcommand works with.
struct Context {
    Drives files;
    const Clock& clock;
    std::ostream& out;
    std::ostream& err;
};

/// The program's exit codes.
enum Exit : int { fine = 0, found_something = 1, unusable = 2 };

/// What the command line asks for: set by the subcommand that it names.
using Task = std::function<Exit(Context&)>;

/// Each adds its subcommand, which sets the task.
void add_compose(CLI::App& program, Task& task);
void add_lint(CLI::App& program, Task& task);
void add_settings(CLI::App& program, Task& task);
void add_explain(CLI::App& program, Task& task);
void add_doctor(CLI::App& program, Task& task);
void add_policy(CLI::App& program, Task& task);
void add_presets(CLI::App& program, Task& task);

/// Prints a text in UTF-8.
std::ostream& operator<<(std::ostream& stream, TextView text);

/// Writes to the file, or to the context's output for an empty path.
void deliver(Context& context, const std::string& path, std::string_view bytes);

} // namespace ornavel::workbench
