// Takes away the link by which a Wine world's user has the machine's classes: what registers for all users,
// and what for one, can then be told apart.
#include <windows.h>

int main() {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\Classes", REG_OPTION_OPEN_LINK, DELETE, &key)) return 1;
    // RegDeleteKey would follow the link.
    using DeleteKey = LONG(WINAPI*)(HANDLE);
    const auto address = GetProcAddress(GetModuleHandleW(L"ntdll"), "NtDeleteKey");
    const auto delete_key = reinterpret_cast<DeleteKey>(reinterpret_cast<void*>(address));
    const bool deleted = delete_key && delete_key(key) == 0;
    RegCloseKey(key);
    return deleted ? 0 : 1;
}
