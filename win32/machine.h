#pragma once

#include "base/clock.h"
#include "base/launcher.h"
#include "base/waiting.h"
#include "forms/string_table.h"
#include "forms/windows.h"

#include <windows.h>

namespace ornavel::win32 {

class SystemClock final : public Clock {
public:
    LocalTime now() const override;
};

/// Starts programs as the shell does when the user opens them.
class ShellLauncher final : public Launcher {
public:
    void launch(TextView program, TextView arguments, WindowState window) override;
    Progress run_windows_program(TextView name, TextView arguments, WindowState window,
                                 int milliseconds) override;
};

/// The windows of the user's desktop, in front of the window that is active in this thread.
class DesktopWindows final : public forms::Windows {
public:
    Answer show(TextView title, TextView text, Buttons buttons) override;
    void show_modal(forms::Form& form) override;
    std::optional<Text> ask_for_path(const forms::PathQuestion& question) override;
    void while_user_waits(const std::function<void()>& body) override;
    void keep_on_top(int window) override;
};

/// Waits in a loop that hands the thread's windows what the user does.
class MessageWaiting final : public Waiting {
public:
    long long milliseconds() override;
    void wait(int milliseconds) override;

private:
    long long passed_ = 0;
    unsigned long last_tick_ = 0; ///< of the system's clock, which begins anew after 49 days
};

/// The numbered texts in a module's resources.
class ResourceStrings final : public forms::StringTable {
public:
    explicit ResourceStrings(HINSTANCE module) : module_(module) {}
    std::optional<Text> find(int id) const override;

private:
    HINSTANCE module_;
};

} // namespace ornavel::win32
