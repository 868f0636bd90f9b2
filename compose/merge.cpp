#include "compose/merge.h"

#include "compose/merge_rows.h"

#include <algorithm>

namespace ornavel::compose {

using namespace settings;

Merge Merge::of_body(const Store& settings) {
    Merge merge(settings);
    merge.add_group(user_codes());
    merge.add_group(signature_fields());
    merge.add_group(converted_breaks());
    merge.add_group(background_colour());
    return merge;
}

Merge Merge::of_signature_file(const Store& settings) {
    Merge merge(settings);
    merge.add_group(signature_file_fields());
    merge.add_group(user_codes());
    return merge;
}

TextView Merge::keep(Text text) { return texts_.emplace_back(std::move(text)); }

void Merge::add_group(std::span<const MergeBlock> blocks) {
    for (const MergeBlock& block : blocks) {
        if (!block.when.holds(settings_)) continue;
        for (const MergeRow& row : block.rows) {
            const TextView search = row.search_value ? keep(read(settings_, *row.search_value)) : row.search;
            const TextView replacement =
                row.value ? keep(Text(row.replacement) + read(settings_, *row.value, row.fallback))
                          : row.replacement;
            passes_.push_back({search, replacement});
        }
    }
    group_ends_.push_back(passes_.size());
}

std::size_t Merge::apply(Text& text) const {
    std::size_t failures = 0;
    for (std::size_t first = 0;;) {
        first += Passes(std::span(passes_).subspan(first)).apply(text);
        if (first == passes_.size()) return failures;
        ++failures;
        first = *std::ranges::upper_bound(group_ends_, first);
    }
}

void merge_signature_file(Text& text, const Merge& merge, ErrorSink& errors) noexcept {
    trap(errors, signature_file_trap, [&] {
        for (auto failures = merge.apply(text); failures > 0; --failures)
            trap(errors, signature_file_trap, [] { throw TextTooLarge(); });
    });
}

} // namespace ornavel::compose
