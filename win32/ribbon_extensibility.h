#pragma once

#include <windows.h>

#include <oaidl.h>

namespace ornavel::win32 {

inline constexpr IID IID_IRibbonExtensibility{
    0x000C0396, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

/// How a mail client with a ribbon asks its add-ins what to put there. The markup names callbacks, which it
/// finds by their names and calls late-bound.
struct IRibbonExtensibility : IDispatch {
    virtual HRESULT STDMETHODCALLTYPE GetCustomUI(BSTR RibbonID, BSTR* RibbonXml) = 0;
};

inline constexpr DISPID dispid_get_custom_ui = 1;

} // namespace ornavel::win32
