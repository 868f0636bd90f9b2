#include "host/registry.h"

namespace ornavel::host {
namespace {

constexpr auto current_user = static_cast<std::int32_t>(0x80000001U);

} // namespace

RegistryProvider RegistryProvider::of(Objects& objects, TextView computer) {
    return RegistryProvider(objects.get(u"winmgmts:{impersonationLevel=impersonate}!\\\\" + Text(computer) +
                                        u"\\root\\default:StdRegProv"));
}

Text RegistryProvider::user_string(TextView key, TextView value_name) const {
    Result found;
    call({u"GetStringValue"}, {current_user, Text(key), Text(value_name), &found});
    return as_text(found.value);
}

void RegistryProvider::set_user_string(TextView key, TextView value_name, TextView value) const {
    call({u"SetStringValue"}, {current_user, Text(key), Text(value_name), Text(value)});
}

} // namespace ornavel::host
