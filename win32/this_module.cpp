#include "win32/this_module.h"

// The linker's own name for the start of this module.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace ornavel::win32 {

HINSTANCE this_module() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

} // namespace ornavel::win32
