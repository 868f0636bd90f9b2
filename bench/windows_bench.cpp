// The merge and the seam as the 32-bit add-in runs them; see tools/bench.
#include "bench/bodies.h"
#include "bench/counted_memory.h"
#include "bench/ratios.h"
#include "compose/merge.h"
#include "tests/compose/plain_passes.h"
#include "win32/dispatch_object.h"

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

namespace {

/// An item of the mail client that has a body, and lets go of the one that it is given.
class Body final : public IDispatch {
public:
    explicit Body(const Text& text) : text_(text) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** object) override {
        *object = static_cast<IDispatch*>(this);
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) override {
        *id = 1;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD how, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                     UINT*) override {
        if (!(how & DISPATCH_PROPERTYGET)) return S_OK;
        result->vt = VT_BSTR;
        result->bstrVal = SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text_.data()),
                                            static_cast<UINT>(text_.size()));
        return S_OK;
    }

private:
    const Text& text_;
};

/// Each copy takes memory of its own: so much is taken for each byte of the body.
void print_seam() {
    const Text text = typical_body(megabyte);
    const double size = static_cast<double>(text.size() * sizeof(char16_t));
    Body body(text);
    win32::DispatchObject item{win32::ComPtr<IDispatch>(&body)};
    const CountedMemory counted;
    host::Value read = item.get({u"HTMLBody"}, {});
    const double reading = static_cast<double>(counted.taken()) / size - 1; // without the mail client's own
    item.put({u"HTMLBody"}, read);
    const double writing = static_cast<double>(counted.taken()) / size - 1 - reading;
    print_row("copies at the seam for each byte of a body, reading", reading, "", 1.05);
    print_row("copies at the seam for each byte of a body, writing", writing, "", 1.05);
}

} // namespace
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
    bench::print_seam();
    return bench::rows_short() == 0 ? 0 : 1;
}
