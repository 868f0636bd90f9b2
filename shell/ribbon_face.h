#pragma once

#include "base/text.h"
#include "win32/ribbon_extensibility.h"

namespace ornavel::shell {

class AddIn;

/// The add-in as the mail client's ribbon sees it: another face of the same object. It has an IDispatch of
/// its own, because its first number is GetCustomUI where the add-in's is OnConnection; the ribbon's
/// callbacks have the same numbers in both.
class RibbonFace final : public win32::IRibbonExtensibility {
public:
    explicit RibbonFace(AddIn& owner) : owner_(owner) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD how,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* bad_argument) override;

    HRESULT STDMETHODCALLTYPE GetCustomUI(BSTR RibbonID, BSTR* RibbonXml) override;

private:
    AddIn& owner_;
};

/// The callbacks of the ribbon are numbered from here, behind everything else.
inline constexpr DISPID first_callback = 100;

/// The number of a callback of the ribbon, in both of the add-in's IDispatch; DISPID_UNKNOWN for another
/// name.
DISPID find_callback(TextView name) noexcept;
inline bool is_callback(DISPID id) { return id >= first_callback; }

} // namespace ornavel::shell
