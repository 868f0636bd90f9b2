// The merge as the 32-bit add-in runs it; see tools/bench.
#include "bench/bodies.h"
#include "bench/ratios.h"
#include "compose/merge.h"
#include "tests/compose/plain_passes.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>

namespace ornavel::bench {

double seconds(const std::function<void()>& body) {
    LARGE_INTEGER frequency, begin, end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    body();
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - begin.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Blocks of this size go back to the system whatever the program does.
KeptMemory::KeptMemory() = default;
KeptMemory::~KeptMemory() = default;

} // namespace ornavel::bench

int main() {
    using namespace ornavel;
    settings::MemoryStore store;
    bench::fill_signature(store);
    const compose::Merge merge = compose::Merge::of_body(store);
    const compose::Passes passes(merge.passes());
    Text small = bench::typical_body(bench::megabyte);
    if (Text merged = small; (passes.apply(merged), merged) != compose::plain_passes(small, merge.passes()))
        std::abort();
    bench::print_costs(
        "merge in the 32-bit build", bench::typical_body, [&](Text& text) { passes.apply(text); }, 5, 31);
    return bench::rows_short() == 0 ? 0 : 1;
}
