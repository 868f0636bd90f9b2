#pragma once

#include "forms/form.h"
#include "forms/string_table.h"

#include <optional>

namespace ornavel::forms {

/// The module basResource: a form is designed with numbers in place of its texts, in the tag of the form and
/// of its controls, in tool tips, and in the captions of menu items. Replaces each number by the table's
/// text. A number that the table lacks stays as it is. Never throws.
void load_captions(Form& form, const StringTable& table) noexcept;

/// The whole number that a text stands for: decimal digits with an optional sign, fraction and exponent, and
/// blanks around; a fraction is rounded, a half to the even number. Nothing for any other text, and for a
/// number beyond 32767.
std::optional<int> text_identifier(TextView text);

} // namespace ornavel::forms
