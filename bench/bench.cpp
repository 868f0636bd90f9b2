#include "bench/bodies.h"
#include "bench/composing.h"
#include "bench/harness.h"
#include "bench/peers.h"
#include "bench/ratios.h"
#include "bench/sending.h"
#include "compose/filters.h"
#include "compose/merge.h"
#include "tests/compose/plain_passes.h"

#include <cstdio>

// One row for each figure that the composer promises.

namespace ornavel::bench {
namespace {

void print_merge(const settings::Store& store) {
    const compose::Merge merge = compose::Merge::of_body(store);
    const compose::Passes passes(merge.passes());
    const Work work = [&](Text& text) { passes.apply(text); };
    const Text tiny = typical_body(10 * kilobyte), small = typical_body(megabyte),
               large = typical_body(10 * megabyte);

    const Run refresh = [&] {
        return seconds([&] {
            const compose::Merge fresh = compose::Merge::of_body(store);
            const compose::Passes prepared(fresh.passes());
        });
    };
    const Run runs[] = {working(tiny, work), refresh, hashing};
    const auto times = medians(runs, 2001);
    print_row("merge, 10 KB", times[0] / times[2], "x hash", 0.5);
    print_row("merge, refresh of the tables", times[1] / times[2], "x hash", 1);
    print_row("merge, 1 MB", cost(small, work, 101), "x memcpy", 8);
    print_row("merge, 10 MB", cost(large, work, 31), "x memcpy", 5);
    print_row("merge, 1 -> 10 MB", growth(small, large, work, 9), "x time", 13);

    Text in_order;
    const double sequential = seconds([&] { in_order = compose::plain_passes(large, merge.passes()); });
    Text merged = large;
    passes.apply(merged);
    if (merged != in_order) std::abort();
    const Run merging = working(large, work);
    const double ours = medians({&merging, 1}, 31)[0];
    print_row("merge against sequential passes, 10 MB", sequential / ours, "x faster", 200, true);
    print_peers(large, merge.passes(), ours);
}

void print_hostile_merges(const settings::Store& store) {
    const compose::Merge merge = compose::Merge::of_body(store);
    const compose::Passes passes(merge.passes());
    const Work work = [&](Text& text) { passes.apply(text); };
    Text all_fields;
    for (const compose::Pass& pass : merge.passes()) all_fields.append(pass.search);
    const std::pair<const char*, Text> bodies[] = {
        {"hostile merge: every pattern, end to end", all_fields},
        {"hostile merge: one field, end to end", u"[#SigFullname#]"},
        {"hostile merge: a line with an empty field", u"Phone: [#SigTelephone#]<BR>\r\n"},
        {"hostile merge: openings of fields only", u"[#"},
        {"hostile merge: beginnings of fields only", u"[#SigFul"},
        {"hostile merge: letters of patterns only", u"Phone Sig TEL"},
    };
    for (const auto& [what, piece] : bodies)
        print_costs(
            what, [&](std::size_t bytes) { return repeated(piece, bytes); }, work, 500, 3);
}

void print_filters() {
    const Work images = [](Text& text) { text = compose::without_images(text); };
    const Work links = [](Text& text) { text = compose::with_links(text, u"www."); };
    const auto pieces = [](TextView piece) {
        return [piece](std::size_t bytes) { return repeated(piece, bytes); };
    };
    print_costs("image filter", body_with_images, images, 8);
    print_costs("image filter, tags inside tags", pieces(u"<img "), images, 500);
    print_costs("image filter, images only", pieces(u"<img alt=x>"), images, 500);
    print_costs("link maker, distinct words", distinct_addresses, links, 25);
    print_costs("link maker, one word", pieces(u"www.example.com "), links, 500);
    const std::pair<const char*, Work> others[] = {
        {"body tag filter", [](Text& text) { compose::bare_body_tag(text); }},
        {"style filter", [](Text& text) { compose::empty_style_block(text); }},
        {"font filter", compose::break_fonts},
        {"lines of plain text", [](Text& text) { text = compose::lines_as_divisions(text); }},
        {"tabs of plain text", [](Text& text) { compose::replace_tabs(text); }},
        {"image letters of Word", compose::break_image_tags},
    };
    for (const auto& [what, work] : others) print_costs(what, typical_body, work, 500);
    print_costs("body tag filter, tag without an end", pieces(u"<body"), others[0].second, 500);
    print_costs("style filter, block without an end", pieces(u"<style>"), others[1].second, 500);
    print_costs("font filter, fonts only", pieces(u"face="), others[2].second, 500);
    print_costs("tabs of plain text, every word", pieces(u"word\t"), others[4].second, 500);
}

void print_composition() {
    const auto reply = [](std::size_t bytes) {
        return typical_body(bytes / 2) + u"-----Original Message-----" + typical_body(bytes / 2);
    };
    ReplyComposer composer;
    print_costs(
        "whole composition of a reply", reply, [&](Text& text) { composer.compose(std::move(text)); }, 12, 5);

    Text body = reply(10 * megabyte);
    composer.forget();
    const std::size_t input = body.capacity() * sizeof(char16_t), before = heap_bytes();
    reset_heap_peak();
    composer.compose(std::move(body));
    const double output = static_cast<double>(composer.result_bytes());
    const double used = static_cast<double>(heap_peak() - before + input);
    print_row("peak memory of a composition over input + 2 x output",
              used / (static_cast<double>(input) + 2 * output), "", 1.05);
}

} // namespace
} // namespace ornavel::bench

int main() {
    using namespace ornavel;
    settings::MemoryStore store;
    bench::fill_signature(store);
    bench::print_merge(store);
    bench::print_hostile_merges(store);
    bench::print_filters();
    bench::print_composition();
    bench::print_sending();
    std::printf("%d rows short\n", bench::rows_short());
    return bench::rows_short() == 0 ? 0 : 1;
}
