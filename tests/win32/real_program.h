#pragma once

#include "tests/win32/form_stage.h"
#include "win32/handle.h"

#include <gtest/gtest.h>

namespace ornavel::win32 {

/// The path of a file of the build, given from the build folder on. The programs are 32-bit, also where the
/// tests are not.
Text built(TextView file);

/// One of our programs as it was built, in a process of its own, which does not outlive this.
class RealProgram {
public:
    explicit RealProgram(TextView file);
    ~RealProgram();
    RealProgram(const RealProgram&) = delete;
    RealProgram& operator=(const RealProgram&) = delete;

    /// Waits for the process's window with this title; null when none appears.
    HWND window(const wchar_t* title) const;
    /// Waits for the process's end and gives its exit code; nothing when it goes on.
    std::optional<DWORD> exit_code() const;

private:
    std::optional<Handle> process_;
    DWORD id_ = 0;
};

/// Types into a text box as a user does, or presses a button, of a form in any process.
void type(HWND form, const wchar_t* text_box, const wchar_t* text);
void press(HWND form, const wchar_t* button);

/// Started while it runs already, the program ends at once and brings its first window to the front.
void expect_one_at_a_time(TextView file, const wchar_t* title);

} // namespace ornavel::win32
