#pragma once

#include "rehearsal/native/loaded.h"

#include <iostream>

namespace ornavel::equality {

/// Hands each scenario of these files to the check with the counts, and prints them at the end. Gives the
/// program's exit code: 2 where a file can't be played.
template <typename Counts>
int over_scenarios(const std::vector<std::string>& files, void (*check)(rehearsal::Loaded, Counts&),
                   int (*print)(const Counts&)) {
    try {
        Counts counts;
        for (auto& loaded : rehearsal::load(files, rehearsal::Binding::native))
            check(std::move(loaded), counts);
        return print(counts);
    } catch (const rehearsal::Unusable& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}

} // namespace ornavel::equality
