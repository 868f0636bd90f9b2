#include <windows.h>

// The compiler's start-up code would import _lock and _unlock, which not every runtime of Windows 2000
// exports. It runs while the loader or an exit holds everybody else off, so one lock serves every number.
namespace {

CRITICAL_SECTION* the_lock() {
    enum State : LONG { untouched, being_made, made };
    static LONG state = untouched;
    static CRITICAL_SECTION section;
    if (InterlockedCompareExchange(&state, being_made, untouched) == untouched) {
        InitializeCriticalSection(&section);
        InterlockedExchange(&state, made);
    }
    while (InterlockedCompareExchange(&state, made, made) != made) Sleep(0);
    return &section;
}

} // namespace

extern "C" {
void __cdecl _lock(int) { EnterCriticalSection(the_lock()); }
void __cdecl _unlock(int) { LeaveCriticalSection(the_lock()); }
// Where the import library would have pointed.
void(__cdecl* _imp___lock)(int) = _lock;
void(__cdecl* _imp___unlock)(int) = _unlock;
}
