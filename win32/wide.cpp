#include "win32/wide.h"

namespace ornavel::win32 {

std::wstring wide(TextView text) { return {text.begin(), text.end()}; }

Text text_of(std::wstring_view wide) { return {wide.begin(), wide.end()}; }

Text system_message(DWORD code) {
    constexpr DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    wchar_t buffer[1024];
    DWORD length = FormatMessageW(flags, nullptr, code, 0, buffer, ARRAYSIZE(buffer), nullptr);
    while (length > 0 && (buffer[length - 1] == L'\n' || buffer[length - 1] == L'\r')) --length;
    if (length > 0) return text_of({buffer, length});
    return u"Error " + to_text(static_cast<LONG>(code));
}

void fail(TextView subject, DWORD code) {
    // Some functions of the system fail without saying why.
    throw Failure(Text(subject) + u": " + system_message(code ? code : ERROR_CAN_NOT_COMPLETE));
}

Text path_of(HMODULE module) {
    constexpr DWORD longest_path = 32767;
    std::wstring path(longest_path, L'\0');
    path.resize(GetModuleFileNameW(module, path.data(), longest_path));
    return text_of(path);
}

} // namespace ornavel::win32
