#pragma once

#include <utility>

namespace ornavel {

/// Sets a flag for as long as it lives.
class Flag {
public:
    explicit Flag(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Flag() { flag_ = before_; }
    Flag(const Flag&) = delete;
    Flag& operator=(const Flag&) = delete;

private:
    bool& flag_;
    bool before_;
};

} // namespace ornavel
