// Does what Active Setup does when a user logs on: starts what each component of the machine wants for a user
// who has no note of it, or of a lower version, as it is written there, and makes the note. Windows of 64
// bits has two lists of components, and notes for each; here they share one place, because Wine's 32-bit
// programs lose sight of a user's keys once HKEY_CURRENT_USER has a Wow6432Node.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::wstring value(HKEY key, const wchar_t* name) {
    wchar_t text[1024] = {};
    DWORD size = sizeof text - sizeof *text;
    if (RegQueryValueExW(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size)) return {};
    return text;
}

/// The program and its arguments are taken apart as Windows takes any command line apart.
bool run(std::wstring command) {
    wchar_t expanded[2048];
    ExpandEnvironmentStringsW(command.c_str(), expanded, 2048);
    STARTUPINFOW how{};
    how.cb = sizeof how;
    PROCESS_INFORMATION started{};
    if (!CreateProcessW(nullptr, expanded, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &started))
        return false;
    WaitForSingleObject(started.hProcess, INFINITE);
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

/// Four numbers with commas between them; what is not there counts as 0.
bool is_higher(const std::wstring& one, const std::wstring& other) {
    const wchar_t *left = one.c_str(), *right = other.c_str();
    for (int part = 0; part < 4; ++part) {
        wchar_t *after_left, *after_right;
        const long first = std::wcstol(left, &after_left, 10), second = std::wcstol(right, &after_right, 10);
        if (first != second) return first > second;
        left = *after_left ? after_left + 1 : after_left;
        right = *after_right ? after_right + 1 : after_right;
    }
    return false;
}

void look_at(HKEY component, HKEY notes, const wchar_t* name) {
    const std::wstring command = value(component, L"StubPath"), version = value(component, L"Version");
    HKEY note = nullptr;
    const bool noted = !RegOpenKeyExW(notes, name, 0, KEY_ALL_ACCESS, &note);
    if (command.empty() || (noted && !is_higher(version, value(note, L"Version"))))
        return void(RegCloseKey(note));
    if (!noted) RegCreateKeyExW(notes, name, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &note, nullptr);
    const DWORD size = static_cast<DWORD>((version.size() + 1) * sizeof(wchar_t));
    RegSetValueExW(note, L"Version", 0, REG_SZ, reinterpret_cast<const BYTE*>(version.c_str()), size);
    RegCloseKey(note);
    std::printf("%ls: %s\n", command.c_str(), run(command) ? "started" : "can't be started");
}

constexpr wchar_t own_list[] = L"Software\\Microsoft\\Active Setup\\Installed Components";
constexpr wchar_t list_of_32_bits[] = L"Software\\Wow6432Node\\Microsoft\\Active Setup\\Installed Components";

void log_on(const wchar_t* list) {
    HKEY machine = nullptr, notes = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, list, 0, KEY_READ, &machine)) return;
    RegCreateKeyExW(HKEY_CURRENT_USER, own_list, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &notes, nullptr);
    wchar_t name[256];
    for (DWORD index = 0; !RegEnumKeyW(machine, index, name, 256); ++index) {
        HKEY component = nullptr;
        if (RegOpenKeyExW(machine, name, 0, KEY_READ, &component)) continue;
        look_at(component, notes, name);
        RegCloseKey(component);
    }
    RegCloseKey(notes);
    RegCloseKey(machine);
}

} // namespace

int main() {
    log_on(own_list);
    if (sizeof(void*) == 8) log_on(list_of_32_bits);
    return 0;
}
