#include "win32/module_use.h"

#include <windows.h>

namespace ornavel::win32 {
namespace {

LONG uses = 0;

} // namespace

void ModuleUse::begin() { InterlockedIncrement(&uses); }
void ModuleUse::end() { InterlockedDecrement(&uses); }
bool ModuleUse::any() { return uses != 0; }

} // namespace ornavel::win32
