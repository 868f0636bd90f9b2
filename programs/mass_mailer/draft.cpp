#include "programs/mass_mailer/draft.h"

#include "base/errors.h"

#include <algorithm>

namespace ornavel::mass_mailer {
namespace {

constexpr TextView opening = u"{{", closing = u"}}";
constexpr std::size_t shown_of_a_name = 40;

/// As the page's author wrote the name: an editor escapes it, and breaks lines in it.
Text name_in_html(TextView name) {
    constexpr std::pair<TextView, TextView> escapes[] = {
        {u"&nbsp;", u" "}, {u"&lt;", u"<"}, {u"&gt;", u">"}, {u"&quot;", u"\""}, {u"&amp;", u"&"}};
    Text plain(name);
    for (const auto& [escape, sign] : escapes) plain = replace_all(std::move(plain), escape, sign);
    Text words;
    for (const char16_t unit : plain) {
        const bool is_blank = unit == ' ' || unit == '\r' || unit == '\n' || unit == '\t' || unit == 0xA0;
        if (!is_blank)
            words += unit;
        else if (!words.ends_with(u' '))
            words += u' ';
    }
    return trim(words);
}

void add_escaped(Text& text, TextView value) {
    for (const char16_t unit : value) {
        switch (unit) {
        case '&':
            text += u"&amp;";
            break;
        case '<':
            text += u"&lt;";
            break;
        case '>':
            text += u"&gt;";
            break;
        case '"':
            text += u"&quot;";
            break;
        case '\'':
            text += u"&#39;";
            break;
        default:
            text += unit;
        }
    }
}

void add_on_one_line(Text& text, TextView value) {
    for (const char16_t unit : value) text += unit < 0x20 ? u' ' : unit;
}

Text in_quotes(TextView name) {
    const bool is_long = name.size() > shown_of_a_name;
    return u"\"" + Text(name.substr(0, shown_of_a_name)) + (is_long ? u"…\"" : u"\"");
}

} // namespace

Draft::Draft(TextView text, Kind kind, const std::vector<Text>& columns) : kind_(kind) {
    std::size_t at = 0;
    for (auto begin = text.find(opening); begin != TextView::npos; begin = text.find(opening, at)) {
        const auto end = text.find(closing, begin);
        if (end == TextView::npos) {
            add_problem(u"A field never ends: " + in_quotes(text.substr(begin)) + u".");
            break;
        }
        const TextView name = text.substr(begin + 2, end - begin - 2);
        add_field(Text(text.substr(at, begin - at)), name, columns);
        at = end + closing.size();
    }
    rest_ = text.substr(at);
}

void Draft::add_field(Text literal, TextView name, const std::vector<Text>& names) {
    const Text wanted = kind_ == Kind::html ? name_in_html(name) : trim(name);
    const auto is_wanted = [&](const Text& column) { return same_name(column, wanted); };
    const auto found = std::ranges::find_if(names, is_wanted);
    const auto column = static_cast<std::size_t>(found - names.begin());
    if (found == names.end())
        add_problem(u"The list has no column " + in_quotes(wanted) + u".");
    else if (std::ranges::count_if(names, is_wanted) > 1)
        add_problem(u"The list has more than one column " + in_quotes(wanted) + u".");
    else if (std::ranges::find(columns_, column) == columns_.end())
        columns_.push_back(column);
    pieces_.push_back({std::move(literal), column});
}

void Draft::add_problem(Text problem) {
    if (std::ranges::find(problems_, problem) == problems_.end()) problems_.push_back(std::move(problem));
}

Text Draft::filled(std::span<const Text> cells) const {
    Text text;
    for (const Piece& piece : pieces_) {
        text += piece.literal;
        if (piece.column >= cells.size()) continue;
        if (kind_ == Kind::html)
            add_escaped(text, cells[piece.column]);
        else
            add_on_one_line(text, cells[piece.column]);
        if (text.size() > largest_text) throw TextTooLarge();
    }
    text += rest_;
    return text;
}

} // namespace ornavel::mass_mailer
