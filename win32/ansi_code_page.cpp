#include "win32/ansi_code_page.h"

#include "win32/wide.h"

namespace ornavel::win32 {
namespace {

class AnsiCodePage final : public CodePage {
public:
    Text decode(std::string_view bytes) const override {
        const int size = static_cast<int>(bytes.size());
        std::wstring text(bytes.size(), L'\0');
        const int length = size ? MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), size) : 0;
        text.resize(static_cast<std::size_t>(length));
        return text_of(text);
    }

    std::optional<std::string> encode(TextView text) const override {
        constexpr std::size_t most_bytes_for_a_unit = 4;
        const std::wstring source = wide(text);
        std::string bytes(text.size() * most_bytes_for_a_unit, '\0');
        if (text.empty()) return bytes;
        BOOL replaced = FALSE;
        const int length =
            WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, source.data(), static_cast<int>(source.size()),
                                bytes.data(), static_cast<int>(bytes.size()), nullptr, &replaced);
        if (length == 0 || replaced) return {};
        bytes.resize(static_cast<std::size_t>(length));
        return bytes;
    }
};

} // namespace

const CodePage& ansi_code_page() {
    static const AnsiCodePage page;
    return page;
}

} // namespace ornavel::win32
