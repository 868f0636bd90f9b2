#pragma once

#include <windows.h>

#include <oaidl.h>

// What the mail client asks of a page in its Options dialog, as its type library and the language bindings
// made of that publish it (PropertyPage, "Outlook 9.0 Object Library" and later): a dual interface, whose
// members have these identifiers and follow each other in this order behind those of IDispatch.

namespace ornavel::win32 {

inline constexpr IID IID_PropertyPage{0x0006307E, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
/// Of the dialog, which a page finds as an interface of its client site; late-bound here.
inline constexpr IID IID_PropertyPageSite{0x0006307F, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

inline constexpr DISPID id_of_GetPageInfo = 0x2100, id_of_Dirty = 0x2101, id_of_Apply = 0x2102;

struct PropertyPage : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE GetPageInfo(BSTR* HelpFile, LONG* HelpContext) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Dirty(VARIANT_BOOL* Dirty) = 0;
    virtual HRESULT STDMETHODCALLTYPE Apply() = 0;
};

} // namespace ornavel::win32
