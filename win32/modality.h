#pragma once

#include <windows.h>

#include <vector>

namespace ornavel::win32 {

/// Keeps the user from every visible window of this thread but one, for as long as it lives. A window that
/// was out of reach before stays so.
class Modality {
public:
    explicit Modality(HWND but_one);
    ~Modality();
    Modality(const Modality&) = delete;
    Modality& operator=(const Modality&) = delete;

private:
    static BOOL CALLBACK disable(HWND window, LPARAM self);

    HWND but_one_;
    std::vector<HWND> disabled_;
};

} // namespace ornavel::win32
