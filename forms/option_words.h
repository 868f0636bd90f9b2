#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel::forms {

// The words of the send-options form for the mail client's numbers. The two directions are deliberately not
// inverse: of the French words that are shown, only "Normale" and "Confidentiel" are read back as the number
// they stand for.

/// The number that a word stands for, English or French, the case of letters counts; nothing for any other
/// text.
std::optional<int> importance_from_text(TextView word);
std::optional<int> sensitivity_from_text(TextView word);

/// The word that is shown for a number; nothing for a number that the mail client doesn't have. Every
/// language but "English" is French.
std::optional<Text> importance_to_text(int number, TextView language);
std::optional<Text> sensitivity_to_text(int number, TextView language);

} // namespace ornavel::forms
