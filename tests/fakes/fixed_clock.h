#pragma once

#include "base/clock.h"

namespace ornavel {

class FixedClock final : public Clock {
public:
    LocalTime time{2003, 11, 20, 14, 5, 9};
    LocalTime now() const override { return time; }
};

} // namespace ornavel
