#include "bench/harness.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <malloc.h>
#include <new>
#include <sys/resource.h>

// What the harness asks of the system, on Linux.

namespace ornavel::bench {
namespace {

std::size_t live = 0, peak = 0;

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

KeptMemory::KeptMemory() {
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
}

KeptMemory::~KeptMemory() {
    // What the library's own rule arrives at as soon as it has seen blocks of 32 MB come and go.
    constexpr int largest = 32 << 20;
    mallopt(M_MMAP_THRESHOLD, largest);
    mallopt(M_TRIM_THRESHOLD, 2 * largest);
    malloc_trim(0);
}

std::size_t heap_bytes() { return live; }
std::size_t heap_peak() { return peak; }
void reset_heap_peak() { peak = live; }

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
