#pragma once

#include "forms/windows.h"

#include <optional>

namespace ornavel::forms {

/// The name of the input box's form, and of the controls that hold its words.
inline constexpr TextView input_box_name = u"InputBox";
inline constexpr TextView input_box_prompt = u"lblPrompt";
inline constexpr TextView input_box_answer = u"txtAnswer";
inline constexpr TextView input_box_ok = u"cmdOK";

/// Asks the user for a line of text, which may be left empty; nothing when the user cancels. Throws Failure
/// when there is no window to be had.
std::optional<Text> ask_for_text(Windows& windows, TextView title, TextView prompt, TextView prefilled);

} // namespace ornavel::forms
