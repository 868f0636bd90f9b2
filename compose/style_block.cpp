#include "base/find.h"
#include "compose/filters.h"

// "<style>p { color: red }</style>" becomes "<STYLE></STYLE>": what the mail client's editor wrote for its
// own page would restyle the template.

namespace ornavel::compose {

std::optional<Cut> empty_style_block(Text& text) {
    constexpr TextView closing = u"</style>";
    const auto begin = find_in_either_case(text, u"<style>");
    if (begin == Text::npos) return {};
    const auto end = find_in_either_case(text, closing, begin);
    if (end == Text::npos) return {};
    constexpr TextView empty = u"<STYLE></STYLE>";
    Cut cut{begin, empty.size(), text.substr(begin, end + closing.size() - begin)};
    text.replace(begin, cut.taken.size(), empty);
    return cut;
}

} // namespace ornavel::compose
