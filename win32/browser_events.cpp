#include "win32/browser_events.h"

#include "base/errors.h"
#include "win32/values.h"
#include "win32/wide.h"

#include <exdispid.h>
#include <shlwapi.h>

namespace ornavel::win32 {
namespace {

/// The indices of an event's arguments; the last one comes first.
enum ArgumentIndex : UINT {
    address_of_navigation = 5,
    cancel_of_navigation = 0,
    arguments_of_navigation = 7,
    cancel_of_new_window_2 = 0,
    cancel_of_new_window_3 = 3,
};

void cancel(const DISPPARAMS& parameters, UINT place) {
    if (parameters.cArgs <= place) return;
    if (VARIANT_BOOL* flag = flag_behind(parameters.rgvarg[place])) *flag = VARIANT_TRUE;
}

/// The path of a file from its address, without the place within it; any other text as it is.
Text path_of_address(TextView address) {
    constexpr DWORD longest = 2084; // an address, for the system
    if (!same_name(address.substr(0, 5), u"file:")) return Text(address);
    std::wstring path(longest, L'\0');
    DWORD length = longest;
    if (FAILED(
            PathCreateFromUrlW(wide(address.substr(0, address.find(u'#'))).c_str(), path.data(), &length, 0)))
        return Text(address);
    return text_of(path.c_str());
}

} // namespace

bool is_address_of(TextView page, TextView address) {
    const auto plain = [](TextView each) { return replace_all(path_of_address(each), u"/", u"\\"); };
    return !address.empty() && same_name(plain(page), plain(address));
}

HRESULT BrowserEvents::GetTypeInfoCount(UINT* count) {
    if (count) *count = 0;
    return count ? S_OK : E_POINTER;
}

bool BrowserEvents::may_go_to(VARIANT& address) const noexcept {
    bool may = follows_links_;
    if (!may) attempt([&] { may = is_address_of(page_, host::as_text(to_value(address))); });
    return may;
}

HRESULT BrowserEvents::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                              UINT*) {
    if (!parameters) return S_OK;
    if (id == DISPID_NEWWINDOW2) cancel(*parameters, cancel_of_new_window_2);
    if (id == DISPID_NEWWINDOW3) cancel(*parameters, cancel_of_new_window_3);
    const bool navigates = id == DISPID_BEFORENAVIGATE2 && parameters->cArgs == arguments_of_navigation;
    if (navigates && !may_go_to(parameters->rgvarg[address_of_navigation]))
        cancel(*parameters, cancel_of_navigation);
    return S_OK;
}

} // namespace ornavel::win32
