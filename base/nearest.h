#pragma once

#include "base/text.h"

#include <optional>
#include <span>

namespace ornavel {

/// The name that was probably meant: the one that the fewest changed letters lead to. The case of letters
/// does not count. Nothing where even that one is another word.
std::optional<Text> nearest(TextView name, std::span<const Text> names);

} // namespace ornavel
