#include "workbench/machine_files.h"

#include "base/encoding.h"
#include "win32/machine.h"
#include "win32/wide.h"
#include "win32/windows_files.h"

#include <shellapi.h>

namespace ornavel::workbench {

Files& machine_files() {
    static win32::WindowsFiles files;
    return files;
}

const Clock& machine_clock() {
    static const win32::SystemClock clock;
    return clock;
}

std::vector<std::string> words_of(int, char**) {
    std::vector<std::string> words;
    int count = 0;
    LPWSTR* const all = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int index = 1; all && index < count; ++index) words.push_back(to_utf8(win32::text_of(all[index])));
    LocalFree(all);
    return words;
}

} // namespace ornavel::workbench
