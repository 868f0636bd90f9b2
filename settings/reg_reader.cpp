#include "settings/reg_file.h"

#include <optional>

namespace ornavel::settings {
namespace {

constexpr TextView old_version = u"REGEDIT4", new_version = u"Windows Registry Editor Version 5.00";

TextView up_to_nul(TextView text) { return text.substr(0, text.find(u'\0')); }

bool is_line_end(char16_t unit) { return unit == u'\r' || unit == u'\n'; }
bool is_blank(char16_t unit) { return unit == u' ' || unit == u'\t'; }

std::optional<unsigned> hex_digit(char16_t unit) {
    if (unit >= u'0' && unit <= u'9') return unit - u'0';
    const auto small = static_cast<char16_t>(unit | 0x20);
    if (small >= u'a' && small <= u'f') return small - u'a' + 10U;
    return {};
}

char16_t unescaped(char16_t unit) { return unit == u'n' ? u'\n' : unit == u'r' ? u'\r' : unit; }

/// A line that makes no sense; the rest of it is passed over.
struct BadLine {
    TextView description;
    std::size_t at;
};

class RegReader {
public:
    RegReader(TextView text, const CodePage& ansi) : text_(text), places_(text), ansi_(ansi) {}

    RegFile run() {
        read_version();
        for (skip_space(); at_ < text_.size(); skip_space()) {
            try {
                read_line();
            } catch (const BadLine& bad) {
                file_.complaints.push_back({Text(bad.description), places_.of(bad.at)});
                skip_line();
            }
        }
        return std::move(file_);
    }

private:
    char16_t here() const { return at_ < text_.size() ? text_[at_] : u'\0'; }
    bool takes(TextView word) {
        if (!text_.substr(at_).starts_with(word)) return false;
        at_ += word.size();
        return true;
    }
    void skip_blanks() {
        while (at_ < text_.size() && is_blank(text_[at_])) ++at_;
    }
    void skip_space() {
        while (at_ < text_.size() && (is_blank(text_[at_]) || is_line_end(text_[at_]))) ++at_;
    }
    void skip_line() {
        while (at_ < text_.size() && !is_line_end(text_[at_])) ++at_;
    }
    /// Behind what a line says only a comment may follow.
    void end_line() {
        skip_blanks();
        if (at_ < text_.size() && !is_line_end(here()) && here() != u';')
            throw BadLine{u"Something follows where the line should end", at_};
        skip_line();
    }

    void read_version() {
        skip_space();
        const std::size_t begin = at_;
        skip_line();
        const Text line = trim(text_.substr(begin, at_ - begin));
        unicode_ = line == new_version;
        if (!unicode_ && line != old_version)
            throw FileError(
                u"This is no registry file: it begins neither with \"REGEDIT4\" nor with \"Windows "
                u"Registry Editor Version 5.00\"",
                places_.of(begin));
    }

    void read_line() {
        if (here() == u';') return skip_line();
        if (here() == u'[') return read_key();
        if (here() != u'"' && here() != u'@') throw BadLine{u"This is neither a key nor a value", at_};
        if (!has_key_) throw BadLine{u"A value stands in front of the first key", at_};
        read_value();
    }

    void read_key() {
        const std::size_t begin = at_++;
        const bool removed = takes(u"-");
        const std::size_t name = at_;
        std::size_t close = Text::npos; // a key's name may hold brackets: the last one closes it
        for (; at_ < text_.size() && !is_line_end(text_[at_]); ++at_)
            if (text_[at_] == u']') close = at_;
        has_key_ = close != Text::npos;
        if (!has_key_) throw BadLine{u"This key has no closing bracket", begin};
        file_.keys.push_back({Text(text_.substr(name, close - name)), removed, {}, places_.of(begin)});
    }

    void read_value() {
        RegValue value;
        value.at = places_.of(at_);
        if (!takes(u"@")) value.name = quoted();
        skip_blanks();
        if (!takes(u"=")) throw BadLine{u"A value's name is followed by \"=\"", at_};
        skip_blanks();
        read_data(value);
        end_line();
        file_.keys.back().values.push_back(std::move(value));
    }

    void read_data(RegValue& value) {
        using enum RegValue::Kind;
        if (here() == u'"') {
            value.value = up_to_nul(quoted());
        } else if (takes(u"-")) {
            value.kind = removed;
        } else if (takes(u"hex(1):")) {
            value.value = text_of(bytes());
        } else if (takes(u"hex(2):")) {
            value.kind = expand_text;
            value.value = text_of(bytes());
        } else {
            value.kind = other;
            skip_other();
        }
    }

    void skip_other() {
        if (takes(u"dword:")) {
            while (hex_digit(here())) ++at_;
            return;
        }
        const std::size_t begin = at_;
        if (!takes_kind()) throw BadLine{u"This kind of value is unknown", begin};
        bytes();
    }

    /// "hex:", or a kind by its number: "hex(7):".
    bool takes_kind() {
        if (!takes(u"hex")) return false;
        if (takes(u"(")) {
            while (hex_digit(here())) ++at_;
            if (!takes(u")")) return false;
        }
        return takes(u":");
    }

    Text quoted() {
        const std::size_t begin = at_++;
        Text value;
        for (; at_ < text_.size() && text_[at_] != u'"'; ++at_) {
            const bool escaped = text_[at_] == u'\\' && at_ + 1 < text_.size();
            value += escaped ? unescaped(text_[++at_]) : text_[at_];
        }
        if (at_ == text_.size()) throw BadLine{u"This text has no closing quote", begin};
        ++at_;
        return value;
    }

    std::string bytes() {
        std::string result;
        for (;;) {
            skip_continuation();
            const auto high = hex_digit(here());
            if (!high) break;
            ++at_;
            const auto low = hex_digit(here());
            if (low) ++at_;
            result += static_cast<char>(low ? *high << 4 | *low : *high);
            skip_continuation();
            if (!takes(u",")) break;
        }
        return result;
    }

    /// A backslash at a line's end: the bytes go on in the next line, and comments may stand between.
    void skip_continuation() {
        skip_blanks();
        while (here() == u'\\') {
            ++at_;
            skip_space();
            while (here() == u';') {
                skip_line();
                skip_space();
            }
        }
    }

    Text text_of(const std::string& bytes) const {
        const Text all = unicode_ ? decode("\xFF\xFE" + bytes, ansi_) : ansi_.decode(bytes);
        return Text(up_to_nul(all));
    }

    TextView text_;
    Places places_;
    const CodePage& ansi_;
    std::size_t at_ = 0;
    bool unicode_ = false, has_key_ = false;
    RegFile file_;
};

} // namespace

RegFile read_reg_file(std::string_view bytes, const CodePage& ansi) {
    if (bytes.starts_with(utf8_mark))
        throw FileError(u"A registry editor reads no file in UTF-8; save it in UTF-16 (\"Unicode\")", {});
    const bool utf16 = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    const Text text = utf16 ? decode(bytes, ansi) : ansi.decode(bytes);
    return RegReader(text, ansi).run();
}

} // namespace ornavel::settings
