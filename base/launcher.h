#pragma once

#include "base/text.h"

namespace ornavel {

enum class WindowState { normal, minimised, hidden };

/// How far a program came in the time that it was given: it still runs, or has ended, saying that it failed
/// or not.
enum class Progress { runs, failed, ended };

/// Starts other programs.
class Launcher {
public:
    virtual ~Launcher() = default;
    /// Starts a program by its full path, in its own folder, without waiting for it. Throws Failure when it
    /// can't be started.
    virtual void launch(TextView program, TextView arguments, WindowState window) = 0;
    /// Starts a program of the Windows folder by its name, never one of that name elsewhere, and waits for
    /// its end, but not longer than this. Throws Failure when it can't be started.
    virtual Progress run_windows_program(TextView name, TextView arguments, WindowState window,
                                         int milliseconds) = 0;
};

} // namespace ornavel
