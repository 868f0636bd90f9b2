#include "win32/window_name.h"

#include "win32/wide.h"

namespace ornavel::win32 {
namespace {

/// Holds the name as a global atom.
constexpr const wchar_t* name_property = L"Ornavel name";

ATOM atom_of(HANDLE held) { return static_cast<ATOM>(reinterpret_cast<UINT_PTR>(held)); }

} // namespace

void give_name(HWND window, TextView name) {
    const ATOM atom = GlobalAddAtomW(wide(name).c_str());
    SetPropW(window, name_property, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(atom)));
}

void take_name(HWND window) { GlobalDeleteAtom(atom_of(RemovePropW(window, name_property))); }

Text name_of(HWND window) {
    wchar_t name[256];
    const ATOM atom = atom_of(GetPropW(window, name_property));
    const UINT length = atom ? GlobalGetAtomNameW(atom, name, ARRAYSIZE(name)) : 0;
    return text_of({name, length});
}

} // namespace ornavel::win32
