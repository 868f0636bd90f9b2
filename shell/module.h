#pragma once

#include "base/text.h"

namespace ornavel::shell {

/// The folder of Ornavel.dll, without a backslash at its end.
Text addin_folder();

/// Every object that lives, and every lock on the class factory, keeps the DLL in memory by one of these.
class ModuleUse {
public:
    ModuleUse() { begin(); }
    ~ModuleUse() { end(); }
    ModuleUse(const ModuleUse&) = delete;
    ModuleUse& operator=(const ModuleUse&) = delete;

    static void begin();
    static void end();
    static bool any();
};

} // namespace ornavel::shell
