#include "rehearsal/report/visible_text.h"

#include "rehearsal/excerpt.h"

#include <algorithm>

namespace ornavel::rehearsal::report {
namespace {

constexpr std::string_view blank = " \t\r\n\f";
constexpr std::string_view unseen[] = {"style", "script", "title"};

bool same_start(std::string_view text, std::string_view lower) {
    return text.size() >= lower.size() &&
           std::ranges::equal(text.substr(0, lower.size()), lower, [](char one, char other) {
               return (one >= 'A' && one <= 'Z' ? static_cast<char>(one - 'A' + 'a') : one) == other;
           });
}

/// Where a tag, a comment or a declaration begins; any other "<" is a character.
bool begins_markup(std::string_view rest) {
    if (rest.size() < 2) return false;
    const char next = rest[1];
    return (next >= 'a' && next <= 'z') || (next >= 'A' && next <= 'Z') || next == '/' || next == '!' ||
           next == '?';
}

std::size_t find_closing(std::string_view html, std::size_t from, std::string_view name) {
    for (auto at = html.find("</", from); at != std::string_view::npos; at = html.find("</", at + 1))
        if (same_start(html.substr(at + 2), name)) return at;
    return html.size();
}

std::size_t behind(std::string_view html, std::string_view end, std::size_t from) {
    const auto at = html.find(end, from);
    return at == std::string_view::npos ? html.size() : at + end.size();
}

/// The place behind the markup that begins here, with all that it hides.
std::size_t skip_markup(std::string_view html, std::size_t at) {
    if (html.substr(at).starts_with("<!--")) return behind(html, "-->", at);
    const std::size_t end = behind(html, ">", at);
    for (const std::string_view name : unseen)
        if (same_start(html.substr(at + 1), name)) return behind(html, ">", find_closing(html, end, name));
    return end;
}

/// A blank that may not break is a blank to a reader.
std::size_t length_of_blank(std::string_view rest) {
    if (rest.starts_with("\xC2\xA0")) return 2;
    if (!rest.starts_with("&nbsp")) return 0;
    return rest.starts_with("&nbsp;") ? 6 : 5;
}

std::string glued(const std::vector<std::string>& words) {
    std::string text;
    for (const auto& word : words) text += word;
    return text;
}

constexpr std::size_t most_words = 8, shortest_piece = 12;

/// Whether a text stands in another one in a few long pieces, one behind the other: what was put in between,
/// as links and a signature are, parts it, and no word is lost.
bool stands_in_pieces(std::string_view text, std::string_view other) {
    while (!text.empty()) {
        const Beginning fits = longest_beginning(text, other);
        if (fits.length < std::min(shortest_piece, text.size())) return false;
        text.remove_prefix(fits.length);
        other.remove_prefix(fits.place + fits.length);
    }
    return true;
}

} // namespace

std::vector<std::string> words_of(std::string_view text) {
    std::vector<std::string> words(1);
    const auto part = [&] {
        if (!words.back().empty()) words.emplace_back();
    };
    for (std::size_t at = 0; at < text.size();) {
        const auto length = length_of_blank(text.substr(at));
        if (length > 0 || blank.find(text[at]) != std::string_view::npos) {
            part();
            at += std::max<std::size_t>(length, 1);
        } else {
            words.back() += text[at++];
        }
    }
    if (words.back().empty()) words.pop_back();
    return words;
}

std::vector<std::string> visible_words(std::string_view html) {
    std::string seen;
    for (std::size_t at = 0; at < html.size();) {
        if (html[at] == '<' && begins_markup(html.substr(at))) {
            seen += ' ';
            at = skip_markup(html, at);
        } else {
            seen += html[at++];
        }
    }
    return words_of(seen);
}

std::string missing_words(const std::vector<std::string>& text, const std::vector<std::string>& other) {
    if (stands_in_pieces(glued(text), glued(other))) return {};
    auto from = other.begin();
    for (auto word = text.begin(); word != text.end(); ++word) {
        const auto found = std::find(from, other.end(), *word);
        if (found == other.end()) {
            std::string missing;
            for (auto next = word; next != text.end() && next < word + most_words; ++next)
                missing += (missing.empty() ? "" : " ") + *next;
            return missing;
        }
        from = found + 1;
    }
    return {};
}

} // namespace ornavel::rehearsal::report
