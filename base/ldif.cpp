#include "base/ldif.h"

#include "base/encoding.h"

namespace ornavel {
namespace {

std::string_view trimmed(std::string_view text) {
    const auto begin = text.find_first_not_of(' ');
    return begin == text.npos ? std::string_view() : text.substr(begin);
}

} // namespace

LdifReader::LdifReader(std::string_view bytes) : bytes_(bytes) {
    if (bytes_.starts_with(utf8_mark)) bytes_.remove_prefix(utf8_mark.size());
}

bool LdifReader::next_line(std::string& line) {
    if (at_ >= bytes_.size()) return false;
    line.clear();
    line_begin_ = line_ + 1;
    do {
        const auto end = std::min(bytes_.find('\n', at_), bytes_.size());
        std::string_view part = bytes_.substr(at_, end - at_);
        if (part.ends_with('\r')) part.remove_suffix(1);
        line.append(line_ + 1 == line_begin_ ? part : part.substr(1)); // a folded part begins with a blank
        at_ = end + 1;
        ++line_;
    } while (at_ < bytes_.size() && bytes_[at_] == ' ');
    return true;
}

bool LdifReader::next(LdifEntry& entry) {
    entry = {};
    for (std::string line; next_line(line);) {
        if (line.empty()) {
            if (!entry.attributes.empty()) return true;
            continue;
        }
        if (line.starts_with('#') || line.starts_with("version:")) continue;
        if (entry.line == 0) entry.line = line_begin_;
        take(line, entry);
    }
    return !entry.attributes.empty();
}

void LdifReader::take(const std::string& line, LdifEntry& entry) const {
    const auto colon = line.find(':');
    if (line == "-") return; // ends a change
    if (colon == line.npos) throw FileError(u"This line has no colon", {line_begin_, 1});
    const Text name = from_utf8(line.substr(0, colon));
    const std::string_view rest = std::string_view(line).substr(colon + 1);
    if (rest.starts_with('<')) return;
    if (!rest.starts_with(':')) {
        entry.attributes.emplace_back(name, from_utf8(trimmed(rest)));
        return;
    }
    const auto value = from_base64(trimmed(rest.substr(1)));
    if (!value) throw FileError(u"This value is no base64", {line_begin_, colon + 3});
    entry.attributes.emplace_back(name, from_utf8(*value));
}

std::optional<std::string> from_base64(std::string_view text) {
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    while (text.ends_with(' ')) text.remove_suffix(1);
    if (text.size() % 4 != 0) return {};
    for (int most = 2; most > 0 && text.ends_with('='); --most) text.remove_suffix(1);
    std::string bytes;
    unsigned bits = 0, held = 0;
    for (const char unit : text) {
        const auto digit = digits.find(unit);
        if (digit == digits.npos) return {};
        bits = (bits << 6 | static_cast<unsigned>(digit)) & 0xFFFF;
        held += 6;
        if (held < 8) continue;
        held -= 8;
        bytes += static_cast<char>(bits >> held & 0xFF);
    }
    return bytes;
}

} // namespace ornavel
