#pragma once

#include "base/text.h"

namespace ornavel::programs {

/// A value as an entry of a list shows it, however long and many-lined it is: a line break and any other
/// control sign becomes a blank, and behind its longest UTF-16 units an ellipsis stands for the rest. A
/// surrogate pair is not cut.
Text in_one_line(TextView value, std::size_t longest = 100);

} // namespace ornavel::programs
