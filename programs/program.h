#pragma once

#include "base/clock.h"
#include "base/files.h"
#include "base/launcher.h"
#include "base/system_information.h"
#include "base/waiting.h"
#include "forms/windows.h"
#include "host/object.h"
#include "settings/changes.h"

namespace ornavel::programs {

/// What a program is given. All of it outlives the program.
struct Platform {
    settings::Store& settings;
    Files& files;
    const Clock& clock;
    Launcher& launcher;
    host::Objects& objects;
    forms::Windows& windows;
    const SystemInformation& machine;
    Text folder; ///< the program's own, without a backslash at its end
    /// The folder among the user's application data where folders may be made; empty where none is known.
    Text user_folder{};
    Text scratch_folder{}; ///< for files that go with the program
    Text arguments{};
    Waiting* waiting = nullptr; ///< of a program that works for long
};

/// A program that users start. Its body shows its forms and gives its exit code; it may throw.
struct Program {
    TextView file;  ///< the name of the executable, such as "SiteAssistant.exe"
    TextView title; ///< of its main window
    int (*body)(const Platform&);
};

/// Exit codes: the user ended the program; it could not go on.
inline constexpr int ended = 0, gave_up = 1;

/// Runs the program to its end. What it throws is told to the user, and gives the exit code gave_up.
int run(const Program& program, const Platform& platform) noexcept;

/// Writes all of the changes. Where one can't be written, what was written before it is taken back, and the
/// user is told in one sentence. Whether they are written.
bool save_or_tell(const Platform& platform, TextView title,
                  const std::vector<settings::Change>& changes) noexcept;

} // namespace ornavel::programs
