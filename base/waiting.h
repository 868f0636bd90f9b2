#pragma once

namespace ornavel {

/// Time, for what goes on for longer than a user's step.
class Waiting {
public:
    virtual ~Waiting() = default;
    /// Of a clock that is never set; where it begins means nothing.
    virtual long long milliseconds() = 0;
    /// Lets that much time pass, in which the user may act on the program's windows; with 0 they have their
    /// turn all the same.
    virtual void wait(int milliseconds) = 0;
};

} // namespace ornavel
