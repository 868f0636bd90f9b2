#pragma once

#include "win32/com.h"

namespace ornavel::win32 {

/// The events of a browser control.
inline constexpr IID DIID_BrowserEvents{
    0x34A715A0, 0x6587, 0x11D0, {0x92, 0x4A, 0x00, 0x20, 0xAF, 0xC7, 0xAC, 0x4D}};

/// Takes a browser control's events and keeps the page where it is: no window is opened, and unless the page
/// follows links, the control goes nowhere but to the page itself.
class BrowserEvents final : public Counted<IDispatch> {
public:
    explicit BrowserEvents(bool follows_links) : follows_links_(follows_links) {}

    /// The page that the control is sent to.
    void expect(TextView page) { page_ = page; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == DIID_BrowserEvents,
                      object);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
        return DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*,
                                     EXCEPINFO*, UINT*) override;

private:
    bool may_go_to(VARIANT& address) const noexcept;

    bool follows_links_;
    Text page_;
};

/// Whether an address is that of the page, a file by its path or by its address: with blanks or "%20",
/// slashes or backslashes, and a place within the page behind it.
bool is_address_of(TextView page, TextView address);

} // namespace ornavel::win32
