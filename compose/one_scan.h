#pragma once

#include "compose/passes.h"

namespace ornavel::compose {

/// Ordered passes in one scan of a text. A match is a place where a search text stands. The scan finds every
/// match that the text has from the beginning. Around each it opens a region: to either side as far as the
/// next barrier (a unit that no search text holds), and at most twice the length of the longest search text.
/// Regions that overlap become one. Then the passes run on each region alone; what stands between the regions
/// stays.
///
/// A region's passes leave a trace: how much they never touched at its two ends. An end is safe at a barrier,
/// at the end of the text, or where the longest search text less one unit was never touched. While an end is
/// not safe, the region grows there, and is solved again from the original text.
///
/// The result is what the passes make of the whole text, because no match ever lies across the border of a
/// region, not even where two regions touch. A barrier is in no match. At any other border a match across it
/// would hold fewer units of either side than were never touched there. So it would have stood in the text
/// from the beginning; but the scan found all of these, and put each whole into one region.
///
/// An example, with blanks for the eye only. "ab" is deleted, then "cd", then "cd" once more. So the longest
/// search text has two units, a region opens four units to either side, and an end is safe where one unit was
/// never touched.
///
///     cccccc ab dddddd                 the text; the scan finds "ab", and there is no barrier
///       cccc ab dd                     the region
///       cccc dd,     ccc d,    cc      after each pass; untouched: 2 at the left end, 0 at the right
///       cccc ab dddddd                 it grows to the right
///       cccc dddddd, ccc ddddd, cc dddd   untouched: 2 and 4, so both ends are safe
///     cccc dddd                        what stood in front of the region, and its result
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
