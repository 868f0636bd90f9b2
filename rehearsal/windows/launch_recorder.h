#pragma once

#include "rehearsal/json.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// Stands in for the starting of programs in one module: what it starts is written down and has ended at
/// once, and need not exist. There is one at a time.
class LaunchRecorder {
public:
    LaunchRecorder();
    ~LaunchRecorder();
    LaunchRecorder(const LaunchRecorder&) = delete;
    LaunchRecorder& operator=(const LaunchRecorder&) = delete;

    void watch(HMODULE module);
    const Json& launched() const { return launched_; }
    void forget() { launched_ = Json::array(); }
    void record(TextView program, TextView arguments, int show_command);

private:
    Json launched_ = Json::array();
};

} // namespace ornavel::rehearsal
