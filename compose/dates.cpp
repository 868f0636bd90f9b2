#include "compose/dates.h"

#include <span>

namespace ornavel::compose {
namespace {

constexpr TextView day_names[] = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                  u"Thursday", u"Friday", u"Saturday"};
constexpr TextView month_names[] = {u"January",   u"February", u"March",    u"April",
                                    u"May",       u"June",     u"July",     u"August",
                                    u"September", u"October",  u"November", u"December"};

TextView entry(std::span<const TextView> names, int number) {
    const auto index = static_cast<std::size_t>(number - 1);
    return index < names.size() ? names[index] : TextView();
}

int hour_of_half(const LocalTime& time) { return (time.hour + 11) % 12 + 1; }
Text half(const LocalTime& time) { return time.hour < 12 ? u" AM" : u" PM"; }

} // namespace

TextView day_name(int weekday) { return entry(day_names, weekday); }
TextView month_name(int month) { return entry(month_names, month); }

int weekday_of(const LocalTime& date) {
    // Zeller's congruence, with January and February as the last months of the year before.
    const int month = date.month < 3 ? date.month + 12 : date.month;
    const int year = date.month < 3 ? date.year - 1 : date.year;
    const int saturday_is_0 =
        (date.day + 13 * (month + 1) / 5 + year + year / 4 - year / 100 + year / 400) % 7;
    return saturday_is_0 == 0 ? 7 : saturday_is_0;
}

Text clock_time(const LocalTime& time) {
    return to_text(hour_of_half(time)) + u":" + two_digits(time.minute) + u":" + two_digits(time.second) +
           half(time);
}

Text short_clock_time(const LocalTime& time) {
    return to_text(hour_of_half(time)) + u":" + two_digits(time.minute) + half(time);
}

Text short_date(const LocalTime& date) {
    return Text(month_name(date.month)) + u" " + to_text(date.day) + u", " + to_text(date.year);
}

Text long_date(const LocalTime& date) { return Text(day_name(weekday_of(date))) + u", " + short_date(date); }

Text filter_date(const LocalTime& date) {
    return Text(month_name(date.month)) + u"-" + two_digits(date.day) + u"-" + to_text(date.year);
}

Text sortable_moment(const LocalTime& time) {
    return two_digits(time.month) + u"-" + two_digits(time.day) + u"-" + to_text(time.year) + u" " +
           two_digits(hour_of_half(time)) + u":" + two_digits(time.minute) + u":" + two_digits(time.second) +
           half(time);
}

Text note_moment(const LocalTime& time) {
    return Text(month_name(time.month).substr(0, 3)) + u"-" + two_digits(time.day) + u"-" +
           two_digits(time.year % 100) + u" " + two_digits(hour_of_half(time)) + u":" +
           two_digits(time.minute) + half(time);
}

Text log_moment(const LocalTime& time) {
    return to_text(time.month) + u"/" + to_text(time.day) + u"/" + to_text(time.year) + u" " +
           clock_time(time);
}

} // namespace ornavel::compose
