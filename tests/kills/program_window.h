#pragma once

#include "base/text.h"
#include "win32/handle.h"

#include <functional>

namespace ornavel::kills {

/// Hands out this thread's messages, to other programs' calls above all, until the condition holds. Throws
/// Failure, with these words, when it doesn't within two minutes.
void pump_until(const std::function<bool()>& condition, TextView awaited);
void pump_for(int milliseconds);

/// Another program, in front of which a user sits. One that still runs at the end is ended.
class ProgramWindow {
public:
    /// Starts the program and waits for its window, which has this name.
    ProgramWindow(TextView program, TextView form);
    ~ProgramWindow() { end(); }
    ProgramWindow(const ProgramWindow&) = delete;
    ProgramWindow& operator=(const ProgramWindow&) = delete;

    void type(TextView control, TextView text) const;
    void click(TextView control) const;
    int entries_of(TextView list_box) const;
    /// The text of the box that stands in front of the window; empty where there is none.
    Text box() const;
    /// Waits for a box and presses this button of it.
    Text answer(int button) const;
    void close() const;

    bool runs() const;
    /// At once, wherever it is.
    void end();
    int exit_code() const;

private:
    HWND control(TextView name) const;
    HWND box_window() const;

    win32::Handle process_;
    DWORD id_ = 0;
    HWND window_ = nullptr;
};

} // namespace ornavel::kills
