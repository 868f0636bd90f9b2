#pragma once

#include "base/text.h"

#include <windows.h>

namespace ornavel::shell {

/// The class of the add-in, as COM and the mail client know it.
inline constexpr CLSID CLSID_Connect{
    0x01F2687D, 0x003D, 0x4805, {0x87, 0x44, 0x2B, 0x39, 0x21, 0x01, 0x9D, 0xBC}};

/// The class of the page in the mail client's Options dialog.
inline constexpr CLSID CLSID_PropPage{
    0x7B4C9A52, 0x6E1D, 0x4F0B, {0x9D, 0x37, 0x5A, 0x28, 0xC1, 0xE6, 0xF4, 0x93}};

/// Writes, for the current user, what COM and the mail client need to find the add-in. When a part can't be
/// written, nothing stays and Failure is thrown.
void register_add_in(TextView dll_path);

/// Removes all of it, and the parent keys that are empty then. Nothing to remove is no failure.
void unregister_add_in();

} // namespace ornavel::shell
