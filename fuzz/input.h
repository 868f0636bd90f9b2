#pragma once

#include "base/text.h"

#include <cstdint>
#include <cstdlib>

namespace ornavel::fuzz {

/// What the fuzzer made up, taken piece by piece: so that any text can be a seed, a byte of ASCII stands for
/// itself. One from 0x80 on stands for one of the target's own pieces, the last for half a pair; a form feed
/// ends a text.
class Input {
public:
    Input(const std::uint8_t* bytes, std::size_t size) : at_(bytes), end_(bytes + size) {}

    bool empty() const { return at_ == end_; }
    unsigned byte() { return empty() ? end_of_text : *at_++; }

    template <std::size_t count>
    Text text(const TextView (&pieces)[count]) {
        Text result;
        for (unsigned next = byte(); next != end_of_text; next = byte()) {
            if (next < 0x80)
                result += static_cast<char16_t>(next);
            else if (next == 0xFF)
                result += char16_t{0xD800};
            else
                result.append(pieces[next % count]);
        }
        return result;
    }

private:
    static constexpr unsigned end_of_text = '\f';

    const std::uint8_t* at_;
    const std::uint8_t* end_;
};

inline void require(bool holds) {
    if (!holds) std::abort();
}

} // namespace ornavel::fuzz
