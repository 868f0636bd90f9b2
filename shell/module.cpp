#include "shell/module.h"

#include "win32/wide.h"

// The linker's own name for the start of this module.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace ornavel::shell {
namespace {

LONG uses = 0;

} // namespace

HINSTANCE this_module() { return reinterpret_cast<HINSTANCE>(&__ImageBase); }

Text addin_folder() {
    const Text path = win32::path_of(this_module());
    return path.substr(0, path.find_last_of(u'\\'));
}

void ModuleUse::begin() { InterlockedIncrement(&uses); }
void ModuleUse::end() { InterlockedDecrement(&uses); }
bool ModuleUse::any() { return uses != 0; }

} // namespace ornavel::shell
