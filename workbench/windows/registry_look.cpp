#include "workbench/windows/registry_look.h"

#include "win32/wide.h"

namespace ornavel::workbench {
namespace {

class Key {
public:
    Key(HKEY root, TextView path, Bits programs) {
        const REGSAM view = programs == Bits::x64 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
        if (RegOpenKeyExW(root, win32::wide(path).c_str(), 0, KEY_READ | view, &key_) != ERROR_SUCCESS)
            key_ = nullptr;
    }
    ~Key() {
        if (key_) RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    struct Data {
        DWORD type = 0;
        std::string bytes;
    };

    std::optional<Data> value(TextView name) const {
        Data data;
        DWORD size = 0;
        const std::wstring wide = win32::wide(name);
        if (!key_ ||
            RegQueryValueExW(key_, wide.c_str(), nullptr, &data.type, nullptr, &size) != ERROR_SUCCESS)
            return {};
        data.bytes.resize(size);
        auto* const bytes = reinterpret_cast<BYTE*>(data.bytes.data());
        if (RegQueryValueExW(key_, wide.c_str(), nullptr, &data.type, bytes, &size) != ERROR_SUCCESS)
            return {};
        data.bytes.resize(size);
        return data;
    }

    std::optional<Text> name(DWORD index) const {
        wchar_t name[1024];
        DWORD length = 1024;
        if (!key_ ||
            RegEnumValueW(key_, index, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return {};
        return win32::text_of({name, length});
    }

private:
    HKEY key_ = nullptr;
};

Text text_of_bytes(const std::string& bytes) {
    Text text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2)
        text += static_cast<char16_t>(static_cast<unsigned char>(bytes[at]) |
                                      static_cast<unsigned char>(bytes[at + 1]) << 8);
    return text;
}

} // namespace

std::optional<Text> text_in(HKEY root, TextView key, TextView name, Bits programs) {
    const auto data = Key(root, key, programs).value(name);
    if (!data || (data->type != REG_SZ && data->type != REG_EXPAND_SZ)) return {};
    const Text text = text_of_bytes(data->bytes);
    return text.substr(0, text.find(u'\0'));
}

std::optional<DWORD> number_in(HKEY root, TextView key, TextView name, Bits programs) {
    const auto data = Key(root, key, programs).value(name);
    if (!data || data->type != REG_DWORD || data->bytes.size() != sizeof(DWORD)) return {};
    DWORD number = 0;
    memcpy(&number, data->bytes.data(), sizeof number);
    return number;
}

std::vector<Entry> entries_in(HKEY root, TextView path) {
    const Key key(root, path, Bits::x86);
    std::vector<Entry> all;
    for (DWORD index = 0;; ++index) {
        const auto name = key.name(index);
        if (!name) return all;
        if (const auto data = key.value(*name)) all.push_back({*name, text_of_bytes(data->bytes)});
    }
}

} // namespace ornavel::workbench
