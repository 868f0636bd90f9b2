#include "rehearsal/windows/import_table.h"

#include <cstring>

namespace ornavel::rehearsal {
namespace {

template <class Type>
Type* at(BYTE* base, DWORD offset) {
    return reinterpret_cast<Type*>(base + offset);
}

void replace(void** slot, void* by) {
    DWORD protection = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = by;
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}

/// Redirects what one library's part of the import table names.
void redirect_in(BYTE* base, const IMAGE_IMPORT_DESCRIPTOR& library, const char* function, void* by) {
    const auto* names = at<IMAGE_THUNK_DATA>(base, library.OriginalFirstThunk);
    auto* slots = at<void*>(base, library.FirstThunk);
    for (; names->u1.AddressOfData; ++names, ++slots) {
        if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
        const auto* import = at<IMAGE_IMPORT_BY_NAME>(base, static_cast<DWORD>(names->u1.AddressOfData));
        if (std::strcmp(reinterpret_cast<const char*>(import->Name), function) == 0) replace(slots, by);
    }
}

} // namespace

void redirect(HMODULE module, const char* function, void* by) {
    auto* base = reinterpret_cast<BYTE*>(module);
    const auto* headers =
        at<IMAGE_NT_HEADERS>(base, static_cast<DWORD>(at<IMAGE_DOS_HEADER>(base, 0)->e_lfanew));
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    const auto* library = at<IMAGE_IMPORT_DESCRIPTOR>(base, directory.VirtualAddress);
    for (; library->Name; ++library) redirect_in(base, *library, function, by);
}

} // namespace ornavel::rehearsal
