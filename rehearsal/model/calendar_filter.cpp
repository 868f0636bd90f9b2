#include "base/encoding.h"
#include "host/value.h"
#include "rehearsal/model/calendar.h"

#include <algorithm>
#include <regex>

namespace ornavel::rehearsal {
namespace {

constexpr const char* month_words[] = {"january", "february", "march",     "april",   "may",      "june",
                                       "july",    "august",   "september", "october", "november", "december"};

[[noreturn]] void invalid() { throw host::Error(u"The condition is not valid."); }

int month_number(const std::string& name) {
    if (name[0] >= '0' && name[0] <= '9') return std::stoi(name);
    const auto month = std::find(std::begin(month_words), std::end(month_words), name);
    if (month == std::end(month_words)) invalid();
    return static_cast<int>(month - std::begin(month_words)) + 1;
}

/// "november-20-2003", "11/20/2003", each alone or with a time such as "11:59 pm".
LocalTime filter_time(const std::string& text) {
    static const std::regex shape(
        R"(([a-z]+|\d{1,2})[-/ ](\d{1,2}),?[-/ ](\d{4})( +(\d{1,2}):(\d{2})(:(\d{2}))? *(am|pm)?)?)");
    std::smatch parts;
    if (!std::regex_match(text, parts, shape)) invalid();
    const auto number = [&](std::size_t part) { return parts[part].matched ? std::stoi(parts[part]) : 0; };
    LocalTime time{number(3), month_number(parts[1]), number(2), number(5), number(6), number(8)};
    if (parts[9].matched) time.hour = time.hour % 12 + (parts[9] == "pm" ? 12 : 0);
    return time;
}

bool holds(const LocalTime& start, const std::string& comparison, const LocalTime& limit) {
    if (comparison == ">=") return start >= limit;
    if (comparison == "<=") return start <= limit;
    if (comparison == ">") return start > limit;
    if (comparison == "<") return start < limit;
    return start == limit;
}

} // namespace

std::vector<Appointment> restricted(const std::vector<Appointment>& appointments, TextView filter) {
    static const std::regex condition(R"(^ *\[start\] *(>=|<=|>|<|=) *'([^']*)' *(and(?= )|$))");
    std::vector<Appointment> left = appointments;
    std::string rest = to_utf8(lower_case(filter));
    if (rest.empty()) invalid();
    while (!rest.empty()) {
        std::smatch parts;
        if (!std::regex_search(rest, parts, condition)) invalid();
        const auto limit = filter_time(parts[2]);
        const std::string comparison = parts[1];
        std::erase_if(left, [&](const Appointment& entry) { return !holds(entry.start, comparison, limit); });
        rest = parts.suffix();
    }
    return left;
}

} // namespace ornavel::rehearsal
