#pragma once

#include "base/errors.h"
#include "win32/values.h"
#include "win32/wide.h"

namespace ornavel::shell {

/// Runs a body on behalf of the mail client: nothing gets out, and the object stays until it has ended.
template <class Body>
HRESULT at_boundary(IUnknown* object, Body body) noexcept {
    const win32::ComPtr<IUnknown> kept(object);
    attempt(body);
    return S_OK;
}

/// Answers GetIDsOfNames. The first name is a member's; the members' parameters have no names here.
template <class Find>
HRESULT identify(Find find, LPOLESTR* names, UINT count, DISPID* ids) noexcept {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    attempt([&] { ids[0] = find(win32::text_of(names[0])); });
    return count > 1 || ids[0] == DISPID_UNKNOWN ? DISP_E_UNKNOWNNAME : S_OK;
}

/// One argument of a late-bound call, counted from the first; one that is not there is empty. Throws
/// host::Error for what the seam has no type for.
inline host::Value argument_of(const DISPPARAMS* parameters, UINT index) {
    if (!parameters || index >= parameters->cArgs) return host::Empty{};
    return win32::to_value(parameters->rgvarg[parameters->cArgs - 1 - index]);
}

} // namespace ornavel::shell
