#include "programs/site_assistant/markup.h"

#include <algorithm>

namespace ornavel::programs {
namespace {

bool is_digit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }
bool is_letter(char16_t unit) { return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z'); }
bool is_hexadecimal(char16_t unit) {
    return is_digit(unit) || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

bool are_all(TextView text, bool (*fits)(char16_t)) {
    return !text.empty() && std::ranges::all_of(text, fits);
}

bool is_name_of_entity(TextView name) {
    if (name.starts_with(u"#x") || name.starts_with(u"#X")) return are_all(name.substr(2), is_hexadecimal);
    if (name.starts_with(u"#")) return are_all(name.substr(1), is_digit);
    return !name.empty() && is_letter(name.front()) &&
           are_all(name, [](char16_t unit) { return is_letter(unit) || is_digit(unit); });
}

/// Whether the text, which begins with a "&", begins with an entity.
bool begins_entity(TextView text) {
    const auto end = text.find(u';');
    return end != TextView::npos && is_name_of_entity(text.substr(1, end - 1));
}

TextView entity_for(TextView rest) {
    switch (rest.front()) {
    case u'<':
        return u"&lt;";
    case u'>':
        return u"&gt;";
    case u'&':
        return begins_entity(rest) ? TextView() : TextView(u"&amp;");
    default:
        return {};
    }
}

} // namespace

bool reads_as_markup(TextView text) { return as_HTML(text) != text; }

Text as_HTML(TextView text) {
    Text html;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const TextView entity = entity_for(text.substr(i));
        if (entity.empty())
            html += text[i];
        else
            html += entity;
    }
    return html;
}

} // namespace ornavel::programs
