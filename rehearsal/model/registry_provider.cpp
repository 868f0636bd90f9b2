#include "rehearsal/model/registry_provider.h"

#include "rehearsal/model/mail_client.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

using host::Value;

constexpr std::int32_t succeeded = 0, not_found = 2, other_type = 1;

struct Hive {
    std::uint32_t number;
    TextView name;
};

constexpr Hive numbered_hives[] = {
    {0x80000000, u"HKEY_CLASSES_ROOT"},   {0x80000001, u"HKEY_CURRENT_USER"},
    {0x80000002, u"HKEY_LOCAL_MACHINE"},  {0x80000003, u"HKEY_USERS"},
    {0x80000005, u"HKEY_CURRENT_CONFIG"},
};

/// The full key that the first two arguments name.
Text key_of(const Call& call) {
    const auto number = static_cast<std::uint32_t>(call.number(0));
    const auto hive = std::find_if(std::begin(numbered_hives), std::end(numbered_hives),
                                   [&](const Hive& entry) { return entry.number == number; });
    if (hive == std::end(numbered_hives)) throw host::Error(u"Invalid parameter");
    return Text(hive->name) + u'\\' + call.text(1);
}

Value& result_of(const Call& call) {
    const auto* result = std::get_if<host::Result*>(&call.arguments[3]);
    if (!result || !*result) throw host::Error(u"Type mismatch");
    return (*result)->value;
}

/// Reads a value of one type; the result stays empty for any other.
template <class Stored>
Value read_value(const Call& call) {
    Value& result = result_of(call);
    result = {};
    const auto value = call.client.machine().registry().find(key_of(call), call.text(2));
    if (!value) return not_found;
    const auto* stored = std::get_if<Stored>(&*value);
    if (!stored) return other_type;
    if constexpr (std::is_same_v<Stored, Text>)
        result = *stored;
    else
        result = static_cast<std::int32_t>(*stored);
    return succeeded;
}

Value set_string(const Call& call) {
    call.client.machine().registry().set(key_of(call), call.text(2), call.text(3));
    return succeeded;
}

Value set_number(const Call& call) {
    call.client.machine().registry().set(key_of(call), call.text(2),
                                         static_cast<std::uint32_t>(call.number(3)));
    return succeeded;
}

Value delete_key(const Call& call) {
    return call.client.machine().registry().remove_key(key_of(call)) ? succeeded : not_found;
}

constexpr MemberRow provider_members[] = {
    method(u"GetStringValue", read_value<Text>, 4, 4),
    method(u"SetStringValue", set_string, 4, 4),
    method(u"GetDWORDValue", read_value<std::uint32_t>, 4, 4),
    method(u"SetDWORDValue", set_number, 4, 4),
    method(u"DeleteKey", delete_key, 2, 2),
};

} // namespace

const Class& RegistryProviderNode::what() const {
    static constexpr Class table{u"StdRegProv", provider_members};
    return table;
}

} // namespace ornavel::rehearsal
