#include "base/find.h"
#include "base/splice.h"
#include "compose/filters.h"

// "face=" becomes "xface=" and "size=" becomes "xsize=", anywhere in the text. Neither makes a new place for
// the other, so that one walk does for both.

namespace ornavel::compose {

void break_fonts(Text& text) {
    constexpr Pair beginnings[] = {{u'f', u'a'}, {u's', u'i'}};
    std::vector<std::uint32_t> places;
    for (auto at = find_pair(text, 0, beginnings); at != Text::npos;
         at = find_pair(text, at + 1, beginnings)) {
        const TextView rest = TextView(text).substr(at);
        if (rest.starts_with(u"face=") || rest.starts_with(u"size="))
            places.push_back(static_cast<std::uint32_t>(at));
    }
    splice(text, places, 0, u"x");
}

} // namespace ornavel::compose
