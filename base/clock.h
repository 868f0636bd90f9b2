#pragma once

#include <compare>

namespace ornavel {

/// A moment of local time, as the user's clock shows it.
struct LocalTime {
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0;
    auto
    operator<=>(const LocalTime&) const = default; // NOLINT(modernize-use-nullptr): there is no zero here
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual LocalTime now() const = 0;
};

} // namespace ornavel
