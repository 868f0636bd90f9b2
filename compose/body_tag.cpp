#include "base/find.h"
#include "compose/filters.h"

// "<body bgcolor=red>" becomes "<BODY>", so that the template's own body tag decides.

namespace ornavel::compose {

void put_back(Text& text, const Cut& cut) { text.replace(cut.at, cut.size, cut.taken); }

std::optional<Cut> bare_body_tag(Text& text) {
    const auto begin = find_in_either_case(text, u"<body");
    if (begin == Text::npos) return {};
    const auto end = text.find(u'>', begin);
    // A bare tag that opens the text has no attributes to lose. It keeps its own case: the marker of a reply
    // compares with case, and may begin with it.
    if (end == Text::npos || end + 1 == 6) return {};
    constexpr TextView bare = u"<BODY>";
    Cut cut{begin, bare.size(), text.substr(begin, end + 1 - begin)};
    text.replace(begin, cut.taken.size(), bare);
    return cut;
}

} // namespace ornavel::compose
