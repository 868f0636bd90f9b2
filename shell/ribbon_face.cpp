#include "shell/ribbon_face.h"

#include "shell/add_in.h"
#include "shell/boundary.h"

namespace ornavel::shell {
namespace {

DISPID find_ribbon_member(TextView name) {
    return same_name(name, u"GetCustomUI") ? win32::dispid_get_custom_ui : find_callback(name);
}

} // namespace

DISPID find_callback(TextView name) noexcept {
    const auto number = connect::Connect::find_ribbon_callback(name);
    return number ? first_callback + *number : DISPID_UNKNOWN;
}

HRESULT RibbonFace::QueryInterface(REFIID wanted, void** object) {
    return owner_.QueryInterface(wanted, object);
}
ULONG RibbonFace::AddRef() { return owner_.AddRef(); }
ULONG RibbonFace::Release() { return owner_.Release(); }

HRESULT RibbonFace::GetTypeInfoCount(UINT* count) { return owner_.GetTypeInfoCount(count); }
HRESULT RibbonFace::GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) {
    return owner_.GetTypeInfo(index, locale, info);
}

HRESULT RibbonFace::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    return identify(find_ribbon_member, names, count, ids);
}

HRESULT RibbonFace::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                           UINT*) {
    if (is_callback(id)) return owner_.run_callback(id, parameters, result);
    if (id != win32::dispid_get_custom_ui) return DISP_E_MEMBERNOTFOUND;
    return at_boundary(this, [&] {
        if (result) VariantInit(result);
        Text ribbon;
        attempt([&] { ribbon = host::as_text(argument_of(parameters, 0)); });
        if (result) *result = win32::to_variant(connect::Connect::GetCustomUI(ribbon)).release();
    });
}

/// Nothing to add is an empty markup, and no error.
HRESULT RibbonFace::GetCustomUI(BSTR RibbonID, BSTR* RibbonXml) {
    if (RibbonXml) *RibbonXml = nullptr;
    return at_boundary(this, [&] {
        const Text markup = connect::Connect::GetCustomUI(win32::text_of_bstr(RibbonID));
        if (RibbonXml) *RibbonXml = win32::Bstr(markup).release();
    });
}

} // namespace ornavel::shell
