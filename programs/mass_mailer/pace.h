#pragma once

#include <algorithm>

namespace ornavel::mass_mailer {

/// When each message of a run is due, so that a minute has as many as were asked for. Who was late doesn't
/// catch up: two messages are never nearer than the pace says, but for the little that a clock's tick is
/// late.
class Pace {
public:
    /// 0 is without pause.
    explicit Pace(int messages_a_minute)
        : interval_(messages_a_minute > 0 ? 60000.0 / messages_a_minute : 0) {}

    double interval() const { return interval_; }
    /// The milliseconds until the next message is due; 0 or less when it is.
    double left(long long now) const { return begun_ ? due_ - static_cast<double>(now) : 0; }
    /// A message goes now.
    void take(long long now) {
        const auto moment = static_cast<double>(now);
        const bool on_time = begun_ && moment - due_ < interval_ / 2;
        due_ = (on_time ? due_ : moment) + interval_;
        begun_ = true;
    }
    /// After a pause the next message is due at once.
    void begin_anew() { begun_ = false; }

private:
    double interval_, due_ = 0;
    bool begun_ = false;
};

} // namespace ornavel::mass_mailer
