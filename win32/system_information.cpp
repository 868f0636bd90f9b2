#include "win32/system_information.h"

#include "base/errors.h"
#include "win32/wide.h"

#include <windows.h>

#include <lmcons.h>

namespace ornavel::win32 {
namespace {

[[noreturn]] void fail_with_last_error() { throw Failure(system_message(GetLastError())); }

/// A text among what the system keeps about itself; empty where it is not there.
Text value_of_system(const wchar_t* name) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows NT\\CurrentVersion", 0,
                      KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
        return {};
    wchar_t text[512] = {};
    DWORD type = REG_NONE, size = sizeof text - sizeof(wchar_t);
    const LSTATUS status = RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(text), &size);
    RegCloseKey(key);
    return status == ERROR_SUCCESS && type == REG_SZ ? text_of(text) : Text();
}

} // namespace

OperatingSystem WindowsInformation::operating_system() const {
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!GetVersionExA(&version)) fail_with_last_error();
    return {static_cast<int>(version.dwPlatformId), static_cast<int>(version.dwMajorVersion),
            static_cast<int>(version.dwMinorVersion), static_cast<int>(version.dwBuildNumber)};
}

int WindowsInformation::processor_type() const {
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    return static_cast<int>(system.dwProcessorType);
}

Memory WindowsInformation::memory() const {
    MEMORYSTATUS memory{};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatus(&memory);
    return {memory.dwTotalPhys, memory.dwAvailPhys, memory.dwTotalVirtual, memory.dwAvailVirtual};
}

Text WindowsInformation::computer_name() const {
    wchar_t name[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD length = MAX_COMPUTERNAME_LENGTH + 1;
    if (!GetComputerNameW(name, &length)) fail_with_last_error();
    return text_of({name, length});
}

Text WindowsInformation::user_name() const {
    wchar_t name[UNLEN + 1];
    DWORD length = UNLEN + 1;
    if (!GetUserNameW(name, &length)) fail_with_last_error();
    return text_of({name, length - 1}); // the length counts the closing NUL
}

Text WindowsInformation::registered_owner() const { return value_of_system(L"RegisteredOwner"); }
Text WindowsInformation::registered_organization() const {
    return value_of_system(L"RegisteredOrganization");
}

} // namespace ornavel::win32
