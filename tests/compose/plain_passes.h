#pragma once

#include "compose/passes.h"

namespace ornavel::compose {

/// The reference: each pass walks the whole text, one after the other, with nothing but the standard search.
inline Text plain_passes(Text text, std::span<const Pass> passes) {
    for (const Pass& pass : passes) {
        if (pass.search.empty()) continue;
        Text result;
        std::size_t done = 0;
        for (auto at = text.find(pass.search); at != Text::npos; at = text.find(pass.search, done)) {
            result.append(text, done, at - done).append(pass.replacement);
            done = at + pass.search.size();
        }
        text = result.append(text, done);
    }
    return text;
}

} // namespace ornavel::compose
