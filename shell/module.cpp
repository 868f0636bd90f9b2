#include "shell/module.h"

#include "win32/this_module.h"
#include "win32/wide.h"

namespace ornavel::shell {
namespace {

LONG uses = 0;

} // namespace

Text addin_folder() {
    const Text path = win32::path_of(win32::this_module());
    return path.substr(0, path.find_last_of(u'\\'));
}

void ModuleUse::begin() { InterlockedIncrement(&uses); }
void ModuleUse::end() { InterlockedDecrement(&uses); }
bool ModuleUse::any() { return uses != 0; }

} // namespace ornavel::shell
