#pragma once

#include "base/text.h"

#include <windows.h>

namespace ornavel::win32 {

/// The tool tips of the controls of one window; they go with the window.
class ToolTips {
public:
    explicit ToolTips(HWND owner);
    /// Gives the control, and what it is made of, room for a tip.
    void add(HWND control);
    /// An empty tip never shows.
    void set(HWND control, TextView tip);
    /// The same while the mouse is over this place of the window: the window itself gets the messages that a
    /// disabled control in it does not.
    void set_for_place(HWND control, const RECT& place, TextView tip);

private:
    struct Tool;
    void send(UINT message, const Tool& tool);

    HWND owner_;
    HWND tips_;
};

} // namespace ornavel::win32
