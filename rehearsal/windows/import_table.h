#pragma once

#include <windows.h>

namespace ornavel::rehearsal {

/// Makes a module call another function in place of the one that it imports by this name; a module that
/// imports none stays as it is.
void redirect(HMODULE module, const char* function, void* by);

} // namespace ornavel::rehearsal
