// Stands in for the system's program that imports registry files: takes its time before it reads the file.
// The file's first line says how long, in milliseconds; the second is its name. Writes that name to a list,
// or exits with 1 where there is no such file any more.
#include <windows.h>

#include <cstdlib>
#include <string>

namespace {

constexpr wchar_t list_of_imports[] = L"C:\\windows\\ornavel_prefix\\imports.txt";

std::string read(const wchar_t* path) {
    const HANDLE file = CreateFileW(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    char bytes[256];
    DWORD count = 0;
    ReadFile(file, bytes, sizeof bytes, &count, nullptr);
    CloseHandle(file);
    return {bytes, count};
}

void append(const std::string& line) {
    const HANDLE file = CreateFileW(list_of_imports, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    DWORD written = 0;
    WriteFile(file, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    CloseHandle(file);
}

} // namespace

int main() {
    const wchar_t* const path = wcsstr(GetCommandLineW(), L"/s ");
    if (!path) return 2;
    Sleep(static_cast<DWORD>(std::atoi(read(path + 3).c_str())));
    const std::string after = read(path + 3);
    if (after.empty()) return 1;
    append(after.substr(after.find('\n') + 1) + "\n");
    return 0;
}
