#pragma once

#include "forms/form.h"

#include <windows.h>

#include <memory>

namespace ornavel::rehearsal {

/// A form as its window shows it, with nothing behind its controls. What of a form no window shows has its
/// default.
std::unique_ptr<forms::Form> read_form(HWND window);

/// The window of a form's control; null where there is none.
HWND control_window(HWND form, TextView control);

} // namespace ornavel::rehearsal
