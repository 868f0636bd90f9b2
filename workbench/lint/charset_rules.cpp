#include "base/encoding.h"
#include "base/find.h"
#include "workbench/lint/sheet.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

bool is_ascii(std::string_view bytes) {
    return std::ranges::all_of(bytes, [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

struct Declared {
    Text name; ///< in lower case
    std::size_t at;
};

/// What a meta tag says of the file's encoding.
std::optional<Declared> declared_in(const Page& page) {
    for (const Tag& tag : page.tags) {
        if (tag.name != u"meta") continue;
        if (const Attribute* own = tag.attribute(u"charset"))
            return Declared{lower_case(own->value), own->value_at};
        const Attribute* content = tag.attribute(u"content");
        if (!content) continue;
        constexpr TextView word = u"charset=";
        const auto at = find_in_either_case(content->value, word);
        if (at == Text::npos) continue;
        const Text name = lower_case(content->value.substr(at + word.size()));
        return Declared{name.substr(0, name.find_first_of(u"; \"'")), content->value_at + at};
    }
    return {};
}

TextView encoding_of(std::string_view bytes) {
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) return u"utf-16";
    return is_utf8(bytes) ? u"utf-8" : u"ansi";
}

bool fits(TextView encoding, TextView declared) {
    if (encoding == u"ansi") return !declared.starts_with(u"utf-");
    return declared == encoding ||
           (encoding == u"utf-16" && (declared == u"unicode" || declared.starts_with(u"utf-16")));
}

void check_declaration(const Sheet& sheet) {
    const auto declared = declared_in(sheet.page);
    if (!declared || is_ascii(sheet.bytes)) return;
    const TextView encoding = encoding_of(sheet.bytes);
    if (fits(encoding, declared->name)) return;
    const Text is = encoding == u"ansi" ? Text(u"the ANSI code page") : upper_case(encoding);
    sheet.tell(declared->at, "charset", u"The file is in " + is + u", and this says " + declared->name,
               u"Save the file as it says, or say what it is");
}

void check_code_page(const Sheet& sheet) {
    const Text& text = sheet.page.text;
    const CodePage& ansi = sheet.ground.files.ansi();
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] < 0x80 || ansi.encode(TextView(text).substr(at, 1))) continue;
        return sheet.tell(
            at, "charset",
            u"The ANSI code page has no character U+" +
                [&] {
                    Text digits;
                    for (int shift = 12; shift >= 0; shift -= 4)
                        digits += u"0123456789ABCDEF"[text[at] >> shift & 0xF];
                    return digits;
                }(),
            u"Write it as an entity, such as &#" + to_text(text[at]) + u";");
    }
}

} // namespace

void check_charset(const Sheet& sheet) {
    check_declaration(sheet);
    check_code_page(sheet);
}

} // namespace ornavel::workbench
