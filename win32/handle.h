#pragma once

#include <windows.h>

#include <utility>

namespace ornavel::win32 {

/// Owns a handle of the system, which Close gives back. A handle that could not be had is false.
template <auto Close>
class Owned {
public:
    explicit Owned(HANDLE handle) : handle_(handle) {}
    ~Owned() {
        if (*this) Close(handle_);
    }
    Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
    Owned& operator=(Owned&&) = delete;

    HANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ && handle_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE handle_;
};

using Handle = Owned<&CloseHandle>;
using FindHandle = Owned<&FindClose>;

} // namespace ornavel::win32
