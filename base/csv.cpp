#include "base/csv.h"

#include <algorithm>

namespace ornavel {
namespace {

bool is_utf16(std::string_view bytes) {
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

/// The most frequent outside quotes in the first row; the comma where there is none.
char separator_of(std::string_view bytes) {
    constexpr std::string_view candidates = ",;\t";
    std::size_t counts[candidates.size()] = {};
    bool quoted = false;
    for (const char byte : bytes) {
        if (byte == '"') quoted = !quoted;
        if (quoted) continue;
        if (byte == '\n' || byte == '\r') break;
        if (const auto which = candidates.find(byte); which != candidates.npos) ++counts[which];
    }
    return candidates[static_cast<std::size_t>(std::ranges::max_element(counts) - counts)];
}

} // namespace

CsvReader::CsvReader(std::string_view bytes, const CodePage& ansi) : bytes_(bytes), ansi_(ansi) {
    if (is_utf16(bytes)) bytes_ = transcoded_ = to_utf8(decode(bytes, ansi));
    if (bytes_.starts_with(utf8_mark)) bytes_.remove_prefix(utf8_mark.size());
    utf8_ = is_utf8(bytes_);
    const auto first = bytes_.find_first_not_of("\r\n");
    separator_ = separator_of(first == bytes_.npos ? std::string_view() : bytes_.substr(first));
}

bool CsvReader::at_line_end() const {
    return at_ == bytes_.size() || bytes_[at_] == '\r' || bytes_[at_] == '\n';
}

void CsvReader::skip_line_end() {
    if (at_ == bytes_.size()) return;
    at_ += bytes_.substr(at_).starts_with("\r\n") ? 2U : 1U;
    ++line_;
    line_start_ = at_;
}

bool CsvReader::next(std::vector<Text>& row) {
    while (at_ < bytes_.size() && at_line_end()) skip_line_end();
    row.clear();
    if (at_ == bytes_.size()) return false;
    row_line_ = line_;
    row.push_back(cell());
    while (!at_line_end()) {
        ++at_; // the separator
        row.push_back(cell());
    }
    skip_line_end();
    return true;
}

Text CsvReader::cell() {
    if (at_ < bytes_.size() && bytes_[at_] == '"') return decoded(quoted_cell());
    const char ends[] = {separator_, '\r', '\n'};
    const auto end = std::min(bytes_.find_first_of(std::string_view(ends, 3), at_), bytes_.size());
    const std::string_view plain = bytes_.substr(at_, end - at_);
    at_ = end;
    return decoded(plain);
}

std::string CsvReader::quoted_cell() {
    const Place opening = here();
    std::string value;
    for (++at_;; ++at_) {
        if (at_ == bytes_.size()) throw FileError(u"This quoted cell never ends", opening);
        if (bytes_[at_] == '"' && (++at_ == bytes_.size() || bytes_[at_] != '"')) break;
        const bool pair = bytes_.substr(at_).starts_with("\r\n");
        if (!pair && (bytes_[at_] == '\n' || bytes_[at_] == '\r')) ++line_, line_start_ = at_ + 1;
        value += bytes_[at_];
    }
    if (!at_line_end() && bytes_[at_] != separator_)
        throw FileError(u"A quoted cell goes on behind its closing quote", here());
    return value;
}

Text CsvReader::decoded(std::string_view cell) const { return utf8_ ? from_utf8(cell) : ansi_.decode(cell); }

} // namespace ornavel
