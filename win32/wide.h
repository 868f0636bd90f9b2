#pragma once

#include "base/errors.h"

#include <windows.h>

namespace ornavel::win32 {

/// Texts as the system's functions take and give them: the same UTF-16 units under another type.
std::wstring wide(TextView text);
Text text_of(std::wstring_view wide);

/// The system's own description of an error or an HRESULT, without the line end that it brings.
Text system_message(DWORD code);

/// Throws Failure: the subject, and why.
[[noreturn]] void fail(TextView subject, DWORD code);

/// The whole path of a loaded module.
Text path_of(HMODULE module);

} // namespace ornavel::win32
