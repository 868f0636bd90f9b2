#pragma once

#include "base/text.h"

#include <windows.h>

#include <optional>

namespace ornavel::workbench {

/// A value of any part of the registry, for those who only look. Nothing where it can't be read or is of
/// another kind.
std::optional<Text> text_in(HKEY root, TextView key, TextView name);
std::optional<DWORD> number_in(HKEY root, TextView key, TextView name);

/// What every value of a key holds, as UTF-16 text where it is bytes.
std::vector<Text> values_in(HKEY root, TextView key);

} // namespace ornavel::workbench
