#pragma once

#include "base/text.h"

#include <windows.h>

#include <optional>

namespace ornavel::workbench {

/// How many bits a program has. On a Windows of 64 bits some keys exist once for each; elsewhere the two are
/// the same.
enum class Bits { x86 = 32, x64 = 64 };

/// A value of any part of the registry, for those who only look. Nothing where it can't be read or is of
/// another kind.
std::optional<Text> text_in(HKEY root, TextView key, TextView name, Bits programs = Bits::x86);
std::optional<DWORD> number_in(HKEY root, TextView key, TextView name, Bits programs = Bits::x86);

/// A value's name, and what it holds, as UTF-16 text where it is bytes.
struct Entry {
    Text name, content;
};

/// Every value of a key.
std::vector<Entry> entries_in(HKEY root, TextView key);

} // namespace ornavel::workbench
