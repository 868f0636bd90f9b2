#pragma once

#include "base/text.h"

namespace ornavel {

enum class WindowState { normal, minimised, hidden };

/// Starts other programs.
class Launcher {
public:
    virtual ~Launcher() = default;
    /// Starts a program by its full path, in its own folder, without waiting for it. Throws Failure when it
    /// can't be started.
    virtual void launch(TextView program, TextView arguments, WindowState window) = 0;
};

} // namespace ornavel
