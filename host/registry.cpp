#include "host/registry.h"

namespace ornavel::host {
namespace {

constexpr auto classes_root = static_cast<std::int32_t>(0x80000000U);
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

std::int32_t RegistryProvider::user_number(TextView key, TextView value_name) const {
    Result found;
    call({u"GetDWORDValue"}, {current_user, Text(key), Text(value_name), &found});
    return as_number(found.value);
}

void RegistryProvider::set_user_number(TextView key, TextView value_name, std::int32_t value) const {
    call({u"SetDWORDValue"}, {current_user, Text(key), Text(value_name), value});
}

void RegistryProvider::delete_class_key(TextView key) const {
    call({u"DeleteKey"}, {classes_root, Text(key)});
}

} // namespace ornavel::host
