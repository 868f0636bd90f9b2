#pragma once

#include <string>
#include <string_view>

inline bool holds(const std::string& text, std::string_view part) {
    return text.find(part) != std::string::npos;
}
