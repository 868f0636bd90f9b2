#include "base/errors.h"
#include "base/find.h"
#include "compose/filters.h"

// Plain text as HTML: a line is a division, an empty one holds a blank that stays, and a tab is three of
// them.

namespace ornavel::compose {
namespace {

constexpr TextView kept_blank = u"&nbsp";

bool is_blank(TextView text) { return text.find_first_not_of(u' ') == TextView::npos; }

/// Calls `take` with each piece between the separators, as split() gives them.
template <typename Take>
void each_piece(TextView text, TextView separator, const Take& take) {
    std::size_t begin = 0;
    for (auto at = find_text(text, separator); at != TextView::npos; at = find_text(text, separator, begin)) {
        take(text.substr(begin, at - begin));
        begin = at + separator.size();
    }
    take(text.substr(begin));
}

} // namespace

Text lines_as_divisions(TextView text) {
    Text result;
    result.reserve(text.size() + text.size() / 2);
    each_piece(text, line_end, [&](TextView line) {
        result.append(u"<div><span>").append(is_blank(line) ? kept_blank : TextView()).append(line);
        result.append(u"</span></div>");
        if (result.size() > largest_text) throw TextTooLarge();
    });
    return result;
}

void replace_tabs(Text& text) {
    if (!contains(text, u"\t") && !is_blank(text)) return;
    Text result;
    result.reserve(text.size() + text.size() / 8);
    bool first = true;
    each_piece(text, u"\t", [&](TextView piece) {
        if (!first) result.append(u"&nbsp;&nbsp;&nbsp;");
        first = false;
        result.append(is_blank(piece) ? kept_blank : TextView()).append(piece);
        if (result.size() > largest_text) throw TextTooLarge();
    });
    text = std::move(result);
}

} // namespace ornavel::compose
