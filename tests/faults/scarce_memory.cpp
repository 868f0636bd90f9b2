#include "tests/faults/scarce_memory.h"

#include "rehearsal/turn.h"

#include <cstdlib>
#include <new>

namespace ornavel::faults {
namespace {

struct Supply {
    bool watched = false, runs_out = false;
    std::size_t asked = 0, first_refused = 0;
};

Supply supply;

bool is_refused() {
    if (!supply.watched || !rehearsal::Turn::is_the_addins()) return false;
    ++supply.asked;
    return supply.runs_out ? supply.asked >= supply.first_refused : supply.asked == supply.first_refused;
}

} // namespace

ScarceMemory::ScarceMemory(std::size_t first_refused, Lasts lasts) {
    supply = {true, first_refused > 0 && lasts == Lasts::from_then_on, 0, first_refused};
}

ScarceMemory::~ScarceMemory() { supply.watched = false; }

std::size_t ScarceMemory::asked() const { return supply.asked; }

} // namespace ornavel::faults

void* operator new(std::size_t size) {
    if (ornavel::faults::is_refused()) throw std::bad_alloc();
    if (void* memory = std::malloc(size ? size : 1)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
