#include "bench/harness.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string>

namespace ornavel::bench {
namespace {

int short_rows = 0;

/// The times of each contender in ascending order.
std::vector<std::vector<double>> turns(std::span<const Run> contenders, int rounds) {
    std::vector<std::vector<double>> times(contenders.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < contenders.size(); ++i) times[i].push_back(contenders[i]());
    for (auto& of_one : times) std::ranges::sort(of_one);
    return times;
}

} // namespace

std::vector<double> medians(std::span<const Run> contenders, int rounds) {
    std::vector<double> middle;
    for (const auto& times : turns(contenders, rounds)) middle.push_back(times[times.size() / 2]);
    return middle;
}

std::vector<double> fastest(std::span<const Run> contenders, int rounds) {
    std::vector<double> first;
    for (const auto& times : turns(contenders, rounds)) first.push_back(times.front());
    return first;
}

double hashing() {
    static const std::string bytes(10'000, 'x');
    [[maybe_unused]] static volatile std::uint32_t result;
    return seconds([] {
        std::uint32_t hash = 2166136261u;
        for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619u;
        result = hash;
    });
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
