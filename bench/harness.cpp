#include "bench/harness.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <malloc.h>
#include <new>
#include <sys/resource.h>

namespace ornavel::bench {
namespace {

std::size_t live = 0, peak = 0;
int short_rows = 0;

double seconds_of(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

double processor_seconds() {
    timespec own{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &own);
    rusage children{};
    getrusage(RUSAGE_CHILDREN, &children);
    return static_cast<double>(own.tv_sec) + static_cast<double>(own.tv_nsec) * 1e-9 +
           seconds_of(children.ru_utime) + seconds_of(children.ru_stime);
}

} // namespace

double seconds(const std::function<void()>& body) {
    const double begin = processor_seconds();
    body();
    return processor_seconds() - begin;
}

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

std::size_t heap_bytes() { return live; }
std::size_t heap_peak() { return peak; }
void reset_heap_peak() { peak = live; }

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

// Every allocation of the program is counted with the size that it really takes.

void* operator new(std::size_t size) {
    void* memory = std::malloc(size);
    if (memory == nullptr) throw std::bad_alloc();
    ornavel::bench::live += malloc_usable_size(memory);
    ornavel::bench::peak = std::max(ornavel::bench::peak, ornavel::bench::live);
    return memory;
}

void operator delete(void* memory) noexcept {
    ornavel::bench::live -= malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
