#include "bench/counted_memory.h"

#include <cstdlib>
#include <new>

#include <objbase.h>

namespace ornavel::bench {
namespace {

std::size_t bytes = 0;

/// Sees what automation takes: its strings, above all.
class Spy final : public IMallocSpy {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = this;
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T size) override {
        bytes += size;
        return size;
    }
    void* STDMETHODCALLTYPE PostAlloc(void* memory) override { return memory; }
    void* STDMETHODCALLTYPE PreFree(void* memory, BOOL) override { return memory; }
    void STDMETHODCALLTYPE PostFree(BOOL) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* memory, SIZE_T size, void** now, BOOL) override {
        *now = memory;
        bytes += size;
        return size;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* memory, BOOL) override { return memory; }
    void* STDMETHODCALLTYPE PreGetSize(void* memory, BOOL) override { return memory; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T size, BOOL) override { return size; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* memory, BOOL) override { return memory; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int done) override { return done; }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}
};

Spy spy;

} // namespace

CountedMemory::CountedMemory() {
    bytes = 0;
    CoRegisterMallocSpy(&spy);
}

CountedMemory::~CountedMemory() { CoRevokeMallocSpy(); }

std::size_t CountedMemory::taken() const { return bytes; }

} // namespace ornavel::bench

void* operator new(std::size_t size) {
    ornavel::bench::bytes += size;
    if (void* memory = std::malloc(size ? size : 1)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
