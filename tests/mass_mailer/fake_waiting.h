#pragma once

#include "base/waiting.h"

#include <functional>

namespace ornavel::mass_mailer {

/// Time that passes only where somebody waits for it. What a user does meanwhile is done in `at_wait`.
class FakeWaiting final : public Waiting {
public:
    long long now = 1'000;
    int turns = 0; ///< waits in which nothing but the user's turn passes
    int late = 0;  ///< by how much the end of each other wait is noticed too late
    std::function<void()> at_wait = [] {};

    long long milliseconds() override { return now; }
    void wait(int milliseconds) override {
        now += milliseconds == 0 ? 0 : milliseconds + late;
        turns += milliseconds == 0;
        at_wait();
    }
};

} // namespace ornavel::mass_mailer
