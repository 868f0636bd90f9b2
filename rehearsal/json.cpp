#include "rehearsal/json.h"

#include "base/encoding.h"

#include <algorithm>
#include <set>

template class nlohmann::detail::serializer<nlohmann::ordered_json>;

namespace ornavel::rehearsal {
namespace {

using Event = Json::parse_event_t;

/// Watches a parse for members that are given twice: the parser itself would keep the last one.
class MemberWatch {
public:
    explicit MemberWatch(const std::string& source) : source_(source) {}

    void see(Event event, const Json& value) {
        if (event == Event::object_start) open_.emplace_back();
        if (event == Event::object_end) open_.pop_back();
        if (event != Event::key) return;
        const auto name = value.get<std::string>();
        if (!open_.back().insert(name).second) throw Unusable(source_ + ": " + name + ": given twice");
    }

private:
    const std::string& source_;
    std::vector<std::set<std::string>> open_;
};

constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// The parser's message without its own name for it, "[json.…] ".
std::string without_label(const std::string& message) {
    const auto end = message.find("] ");
    return message.starts_with('[') && end != std::string::npos ? message.substr(end + 2) : message;
}

int days_of_month(int year, int month) {
    if (month == 2) return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0 ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

bool in_calendar(const LocalTime& time) {
    return time.year >= 1900 && time.month >= 1 && time.month <= 12 && time.day >= 1 &&
           time.day <= days_of_month(time.year, time.month) && time.hour < 24 && time.minute < 60 &&
           time.second < 60;
}

bool has_shape(std::string_view text, std::string_view shape) {
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(), [](char unit, char expected) {
        return expected == '0' ? unit >= '0' && unit <= '9' : unit == expected;
    });
}

} // namespace

Json parse_json(const std::string& text, const std::string& source) {
    MemberWatch watch(source);
    try {
        return Json::parse(text, [&](int, Event event, Json& value) {
            watch.see(event, value);
            return true;
        });
    } catch (const Json::exception& error) {
        throw Unusable(source + ": " + without_label(error.what()));
    }
}

std::string to_json_text(const Json& json) {
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

Json to_json(TextView text) { return to_utf8(text); }

std::string encode_base64(std::string_view bytes) {
    std::string text;
    for (std::size_t start = 0; start < bytes.size(); start += 3) {
        const auto part = bytes.substr(start, 3);
        unsigned group = 0;
        for (std::size_t index = 0; index < 3; ++index)
            group = group << 8 | (index < part.size() ? static_cast<unsigned char>(part[index]) : 0u);
        for (std::size_t index = 0; index < 4; ++index)
            text += index <= part.size() ? digits[group >> (18 - 6 * index) & 63] : '=';
    }
    return text;
}

std::optional<std::string> decode_base64(std::string_view text) {
    if (text.size() % 4 != 0) return {};
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    std::string bytes;
    unsigned group = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        const bool pad = index >= text.size() - padding;
        const auto digit = pad ? 0 : digits.find(text[index]);
        if (digit == std::string_view::npos) return {};
        group = group << 6 | static_cast<unsigned>(digit);
        if (index % 4 != 3) continue;
        for (int shift = 16; shift >= 0; shift -= 8) bytes += static_cast<char>(group >> shift & 255);
        group = 0;
    }
    bytes.resize(bytes.size() - padding);
    return bytes;
}

std::optional<LocalTime> parse_time(std::string_view text) {
    if (!has_shape(text, "0000-00-00T00:00:00")) return {};
    const auto number = [&](std::size_t start, std::size_t length) {
        return std::stoi(std::string(text.substr(start, length)));
    };
    const LocalTime time{number(0, 4),  number(5, 2),  number(8, 2),
                         number(11, 2), number(14, 2), number(17, 2)};
    if (!in_calendar(time)) return {};
    return time;
}

} // namespace ornavel::rehearsal
