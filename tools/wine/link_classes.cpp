// Wine does not merge the user's classes into HKEY_CLASSES_ROOT, as Windows does. This makes
// HKEY_CURRENT_USER\Software\Classes a registry link to the machine's classes, once in a prefix.
#include <windows.h>

#include <cstdio>
#include <shlwapi.h>

int main() {
    constexpr wchar_t classes[] = L"Software\\Classes";
    constexpr wchar_t target[] = L"\\Registry\\Machine\\Software\\Classes";
    SHDeleteKeyW(HKEY_CURRENT_USER, classes);

    HKEY key = nullptr;
    LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, classes, 0, nullptr, REG_OPTION_CREATE_LINK,
                                     KEY_ALL_ACCESS | KEY_CREATE_LINK, nullptr, &key, nullptr);
    if (status == ERROR_SUCCESS) {
        // A link's target is stored without the closing NUL.
        status = RegSetValueExW(key, L"SymbolicLinkValue", 0, REG_LINK, reinterpret_cast<const BYTE*>(target),
                                sizeof target - sizeof *target);
        RegCloseKey(key);
    }
    if (status != ERROR_SUCCESS) std::fprintf(stderr, "link_classes: error %ld\n", status);
    return status == ERROR_SUCCESS ? 0 : 1;
}
