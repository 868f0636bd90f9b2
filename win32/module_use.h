#pragma once

namespace ornavel::win32 {

/// Every object that lives, and every lock on a class factory, keeps the module in memory by one of these:
/// the system must not unmap it while somebody may still call into it.
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

} // namespace ornavel::win32
