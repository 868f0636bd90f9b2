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

Text application_data() {
    Text folder = expanded(u"%APPDATA%");
    return folder.starts_with(u'%') ? Text() : folder;
}

Text user_folder() {
    const Text data = application_data();
    return data.empty() ? Text() : data + u"\\Brevant\\Ornavel";
}

} // namespace ornavel::win32
