#include "base/find.h"
#include "compose/filters.h"

// "<body bgcolor=red>" becomes "<BODY>", so that the template's own body tag decides.

namespace ornavel::compose {

void bare_body_tag(Text& text) {
    const auto begin = find_in_either_case(text, u"<body");
    if (begin == Text::npos) return;
    const auto end = text.find(u'>', begin);
    // A bare tag that opens the text is left in its own case: deliberate.
    if (end == Text::npos || end + 1 == 6) return;
    text.replace(begin, end + 1 - begin, u"<BODY>");
}

} // namespace ornavel::compose
