#include "compose/one_scan.h"

#include <algorithm>
#include <cstring>

namespace ornavel::compose {

bool OneScan::apply(Text& text) {
    if (passes_.pairs_.size() > most_pairs || !solve_regions(text)) return false;
    splice(text);
    return true;
}

bool OneScan::solve_regions(TextView text) {
    std::size_t longest = text.size();
    for (auto hit = next_hit(text, 0); hit != TextView::npos;) {
        Region region = open(text, hit);
        do {
            hit = absorb(text, region, hit);
            if (!solve(text, region)) return false;
        } while (widen(text, region));
        regions_.push_back(region);
        solved_.append(work_);
        longest += region.trace.longest - (region.end - region.begin);
        if (longest > largest_text) return false;
    }
    return true;
}

/// The next place at which a search text, or the field in one, stands.
std::size_t OneScan::next_hit(TextView text, std::size_t from) const {
    const auto begins_here = [&](std::size_t at) {
        const TextView rest = text.substr(at);
        if ((Passes::kind_at_front(rest) & ~Passes::no_field & passes_.kinds_) != 0) return true;
        return std::ranges::any_of(passes_.without_field_,
                                   [&](TextView search) { return rest.starts_with(search); });
    };
    auto at = find_pair(text, from, passes_.pairs_);
    while (at != TextView::npos && !begins_here(at)) at = find_pair(text, at + 1, passes_.pairs_);
    return at;
}

std::size_t OneScan::left_of(TextView text, std::size_t at, std::size_t reach) const {
    const std::size_t limit = at - std::min(at, reach);
    while (at > limit && !is_barrier(text, at - 1)) --at;
    return at;
}

std::size_t OneScan::right_of(TextView text, std::size_t at, std::size_t limit) const {
    limit = std::min(limit, text.size());
    while (at < limit && !is_barrier(text, at)) ++at;
    return at;
}

OneScan::Region OneScan::open(TextView text, std::size_t hit) const {
    return {left_of(text, hit, reach()), right_of(text, hit, hit + reach()), solved_.size(), 0};
}

/// Takes the hits in that a region overlaps, and gives back the first beyond it.
std::size_t OneScan::absorb(TextView text, Region& region, std::size_t hit) const {
    while (hit != TextView::npos && (hit < region.end || left_of(text, hit, reach()) < region.end)) {
        region.end = right_of(text, region.end, hit + reach());
        hit = next_hit(text, hit + 1);
    }
    return hit;
}

bool OneScan::solve(TextView text, Region& region) {
    const std::size_t size = region.end - region.begin;
    work_.assign(text.substr(region.begin, size));
    region.trace = {size, size, size};
    if (passes_.make(work_, spare_, region.trace) < passes_.rows_.size()) return false;
    region.solved_size = work_.size();
    return true;
}

/// Grows a region whose open side was left with too little; false when both sides are safe.
bool OneScan::widen(TextView text, Region& region) {
    const std::size_t safe = passes_.longest_ - 1;
    const std::size_t growth = std::max(reach(), region.end - region.begin);
    const auto left = region.trace.left < safe ? left_of(text, region.begin, growth) : region.begin;
    const auto right =
        region.trace.right < safe ? right_of(text, region.end, region.end + growth) : region.end;
    if (left == region.begin && right == region.end) return false;
    region.begin = left;
    region.end = right;
    join_previous(region);
    return true;
}

void OneScan::join_previous(Region& region) {
    while (!regions_.empty() && regions_.back().end > region.begin) {
        region.begin = std::min(region.begin, regions_.back().begin);
        region.solved_begin = regions_.back().solved_begin;
        regions_.pop_back();
    }
    solved_.resize(region.solved_begin);
}

void OneScan::splice(Text& text) const {
    const std::size_t old_size = text.size();
    std::size_t size = old_size;
    for (const Region& region : regions_) size = size + region.solved_size - (region.end - region.begin);
    text.resize(std::max(size, old_size));
    move_spans(text, old_size);
    text.resize(size);
}

/// Moves every span between two regions to its place, those that go right from the last to the first and
/// those that go left from the first to the last, so that none covers another before it was moved.
void OneScan::move_spans(Text& text, std::size_t old_size) const {
    struct Span {
        std::size_t from, to, size;
    };
    std::vector<Span> spans;
    spans.reserve(regions_.size());
    std::size_t to = 0;
    for (std::size_t i = 0; i < regions_.size(); ++i) {
        const std::size_t before = i == 0 ? 0 : regions_[i - 1].end;
        to += regions_[i].begin - before;
        to += regions_[i].solved_size;
        const std::size_t next = i + 1 < regions_.size() ? regions_[i + 1].begin : old_size;
        spans.push_back({regions_[i].end, to, next - regions_[i].end});
    }
    const auto move = [&](const Span& span) {
        std::memmove(text.data() + span.to, text.data() + span.from, span.size * sizeof(char16_t));
    };
    for (auto span = spans.rbegin(); span != spans.rend(); ++span)
        if (span->to > span->from) move(*span);
    for (const Span& span : spans)
        if (span.to < span.from) move(span);
    for (std::size_t i = 0; i < regions_.size(); ++i)
        solved_.copy(text.data() + spans[i].to - regions_[i].solved_size, regions_[i].solved_size,
                     regions_[i].solved_begin);
}

} // namespace ornavel::compose
