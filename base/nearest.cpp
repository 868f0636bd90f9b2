#include "base/nearest.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace ornavel {
namespace {

/// How many letters must be put in, taken out or replaced to come from one word to the other.
std::size_t distance(TextView from, TextView to) {
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < to.size(); ++j) {
            const std::size_t replaced = diagonal + (from[i] != to[j]);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
}

} // namespace

std::optional<Text> nearest(TextView name, std::span<const Text> names) {
    const Text wanted = lower_case(name);
    const Text* best = nullptr;
    std::size_t least = name.size() / 3 + 1; // a slip or two; more than that is another word
    for (const Text& candidate : names) {
        const std::size_t changes = distance(wanted, lower_case(candidate));
        if (best ? changes >= least : changes > least) continue;
        best = &candidate;
        least = changes;
    }
    if (!best) return {};
    return *best;
}

} // namespace ornavel
