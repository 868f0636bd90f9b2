#pragma once

#include "base/text.h"

#include <cstdint>
#include <cstdlib>

namespace ornavel::fuzz {

/// What the fuzzer made up, taken piece by piece: a byte below 0x60 stands for one of the target's own
/// pieces, any other for itself, and 0xFF ends a text.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}

    bool empty() const { return at_ == end_; }
    unsigned byte() { return empty() ? 0xFF : *at_++; }

    template <std::size_t count>
    Text text(const TextView (&pieces)[count]) {
        Text result;
        for (unsigned next = byte(); next != 0xFF; next = byte()) {
            if (next < 0x60)
                result.append(pieces[next % count]);
            else
                result += static_cast<char16_t>(next == 0xFE ? 0xD800 : next);
        }
        return result;
    }

private:
    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

inline void require(bool holds) {
    if (!holds) std::abort();
}

} // namespace ornavel::fuzz
