#include "bench/harness.h"

#include <algorithm>
#include <cstdio>

namespace ornavel::bench {
namespace {

int short_rows = 0;

} // namespace

std::vector<double> medians(std::span<const Run> contenders, int rounds) {
    std::vector<std::vector<double>> times(contenders.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < contenders.size(); ++i) times[i].push_back(contenders[i]());
    std::vector<double> middle;
    for (auto& of_one : times) {
        std::ranges::sort(of_one);
        middle.push_back(of_one[of_one.size() / 2]);
    }
    return middle;
}

void print_row(const char* what, double figure, const char* unit, double goal, bool at_least) {
    const bool met = goal == 0 || (at_least ? figure >= goal : figure <= goal);
    short_rows += met ? 0 : 1;
    if (goal == 0)
        std::printf("%-58s %10.2f %-9s\n", what, figure, unit);
    else
        std::printf("%-58s %10.2f %-9s %s %8.1f  %s\n", what, figure, unit, at_least ? ">=" : "<=", goal,
                    met ? "ok" : "short");
    std::fflush(stdout);
}

int rows_short() { return short_rows; }

} // namespace ornavel::bench
