#include "host/mapi.h"

#include <cmath>

namespace ornavel::host {
namespace {

constexpr double first_date = -657434, end_of_dates = 2958466; ///< 1 January 100 and 10000

/// The day of a count of days since 1 March of the year 0, in the calendar of today.
LocalTime day(long long days) {
    const long long era = days / 146097;
    const long long of_era = days % 146097;
    const long long year = (of_era - of_era / 1460 + of_era / 36524 - of_era / 146096) / 365;
    const long long of_year = of_era - (365 * year + year / 4 - year / 100);
    const long long month = (5 * of_year + 2) / 153;
    LocalTime time;
    time.day = static_cast<int>(of_year - (153 * month + 2) / 5 + 1);
    time.month = static_cast<int>(month < 10 ? month + 3 : month - 9);
    time.year = static_cast<int>(year + era * 400 + (time.month <= 2 ? 1 : 0));
    return time;
}

} // namespace

LocalTime local_time(Date date) {
    constexpr long long first_day = 693899; // 30 December 1899
    constexpr long long seconds_a_day = 24LL * 60 * 60;
    if (!(date.days > first_date - 1 && date.days < end_of_dates)) throw Error(u"Type mismatch");
    // In front of day 0 the fraction still counts forward from midnight.
    double whole = 0;
    const double fraction = std::abs(std::modf(date.days, &whole));
    const long long second = std::llround(fraction * seconds_a_day);
    LocalTime time = day(first_day + static_cast<long long>(whole) + second / seconds_a_day);
    const int of_day = static_cast<int>(second % seconds_a_day);
    time.hour = of_day / 3600;
    time.minute = of_day / 60 % 60;
    time.second = of_day % 60;
    return time;
}

LocalTime Appointment::start() const {
    const Value start = get({u"Start"});
    if (const auto* date = std::get_if<Date>(&start)) return local_time(*date);
    throw Error(u"Type mismatch");
}

} // namespace ornavel::host
