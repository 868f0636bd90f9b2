#pragma once

#include "compose/passes.h"

namespace ornavel::compose {

/// Ordered passes in one scan of a text. Exactly what the passes do one after the other, by this argument:
///
/// The scan finds every place where a search text occurs. Around each a region is opened, out to a barrier (a
/// unit that occurs in no search text) or to twice the longest search text; regions that overlap are one. The
/// passes then run on each region alone. A barrier is inside no occurrence, now or later, so that what stands
/// on its two sides never meets. On a side without a barrier the passes must have left at least as much
/// untouched as an occurrence across the border could cover: then such an occurrence would have stood in the
/// text from the beginning, and inside one region. Where they left less, the region grows and is solved again
/// from the original text. Everything between the regions stays as it is.
class OneScan {
public:
    explicit OneScan(const Passes& passes) : passes_(passes) {}

    /// False, and the text as it was, when the passes must walk the whole text: it might outgrow the largest
    /// size on the way, or there are too many different beginnings to look for at once.
    bool apply(Text& text);

private:
    struct Region {
        std::size_t begin, end;                ///< in the original text
        std::size_t solved_begin, solved_size; ///< in solved_
        Passes::Trace trace{};
    };

    bool solve_regions(TextView text);
    Region open(TextView text, std::size_t hit) const;
    std::size_t next_hit(TextView text, std::size_t from) const;
    std::size_t absorb(TextView text, Region& region, std::size_t hit) const;
    bool solve(TextView text, Region& region);
    bool widen(TextView text, Region& region);
    void join_previous(Region& region);
    bool is_barrier(TextView text, std::size_t at) const {
        return text[at] < passes_.living_.size() && !passes_.living_[text[at]];
    }
    std::size_t reach() const { return 2 * passes_.longest_; }
    std::size_t left_of(TextView text, std::size_t at, std::size_t reach) const;
    std::size_t right_of(TextView text, std::size_t at, std::size_t limit) const;
    void splice(Text& text) const;
    void move_spans(Text& text, std::size_t old_size) const;

    const Passes& passes_;
    std::vector<Region> regions_;
    Text solved_; ///< the regions' results, one after the other
    Text work_, spare_;
};

} // namespace ornavel::compose
