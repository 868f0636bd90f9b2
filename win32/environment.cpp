#include "win32/environment.h"

#include "win32/wide.h"

namespace ornavel::win32 {

Text expanded(TextView text) {
    const std::wstring source = wide(text);
    std::wstring target(ExpandEnvironmentStringsW(source.c_str(), nullptr, 0), L'\0');
    const DWORD length =
        ExpandEnvironmentStringsW(source.c_str(), target.data(), static_cast<DWORD>(target.size()));
    if (length == 0) fail(text, GetLastError());
    return text_of(target.c_str());
}

Text user_folder() {
    Text folder = expanded(u"%APPDATA%\\Brevant\\Ornavel");
    return folder.starts_with(u'%') ? Text() : folder;
}

} // namespace ornavel::win32
