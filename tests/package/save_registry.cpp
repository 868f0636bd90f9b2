// Writes HKEY_LOCAL_MACHINE\Software and HKEY_CURRENT_USER\Software into the two files that its arguments
// name. Wine's server writes them at once, as text; regedit asks for one value after the other, and takes a
// hundred times as long.
#include <windows.h>

#include <cstdio>

namespace {

bool save(HKEY root, const char* file) {
    HKEY key = nullptr;
    LSTATUS status = RegOpenKeyExA(root, "Software", 0, KEY_READ, &key);
    if (status == ERROR_SUCCESS) status = RegSaveKeyA(key, file, nullptr);
    if (status != ERROR_SUCCESS) std::fprintf(stderr, "save_registry: %s: error %ld\n", file, status);
    RegCloseKey(key);
    return status == ERROR_SUCCESS;
}

/// Without this privilege nobody may save a key.
void take_the_privilege() {
    HANDLE token = nullptr;
    TOKEN_PRIVILEGES wanted{1, {{{}, SE_PRIVILEGE_ENABLED}}};
    OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES, &token);
    LookupPrivilegeValueA(nullptr, "SeBackupPrivilege", &wanted.Privileges[0].Luid);
    AdjustTokenPrivileges(token, FALSE, &wanted, 0, nullptr, nullptr);
    CloseHandle(token);
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) return 2;
    take_the_privilege();
    return save(HKEY_LOCAL_MACHINE, arguments[1]) && save(HKEY_CURRENT_USER, arguments[2]) ? 0 : 1;
}
