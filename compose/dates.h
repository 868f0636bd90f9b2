#pragma once

#include "base/clock.h"
#include "base/text.h"

namespace ornavel::compose {

/// Sunday is 1. Empty outside 1 to 7.
TextView day_name(int weekday);
/// Empty outside 1 to 12.
TextView month_name(int month);
/// Of a date of the calendar of today; Sunday is 1.
int weekday_of(const LocalTime& date);

/// "2:05:09 PM"
Text clock_time(const LocalTime& time);
/// "2:05 PM"
Text short_clock_time(const LocalTime& time);
/// "November 20, 2003"
Text short_date(const LocalTime& date);
/// "Thursday, November 20, 2003"
Text long_date(const LocalTime& date);
/// "November-20-2003"
Text filter_date(const LocalTime& date);
/// "11-20-2003 02:05:09 PM"
Text sortable_moment(const LocalTime& time);
/// "Nov-20-03 02:05 PM"
Text note_moment(const LocalTime& time);
/// "11/20/2003 2:05:09 PM"
Text log_moment(const LocalTime& time);

} // namespace ornavel::compose
