#pragma once

#include "base/text.h"

#include <windows.h>

namespace ornavel::win32 {

/// The tool tips of the controls of one window; they go with the window.
class ToolTips {
public:
    explicit ToolTips(HWND owner);
    /// Gives the control, and what it is made of, a tip; an empty one never shows.
    void add(HWND control);
    void set(HWND control, TextView tip);

private:
    void send(UINT message, HWND control, TextView tip);

    HWND owner_;
    HWND tips_;
};

} // namespace ornavel::win32
