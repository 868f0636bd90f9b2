#pragma once

#include "base/encoding.h"

namespace ornavel::win32 {

/// The machine's ANSI code page. A text converts only when every unit of it has its own place there: no
/// letter is replaced by one that looks like it.
const CodePage& ansi_code_page();

} // namespace ornavel::win32
