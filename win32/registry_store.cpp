#include "win32/registry_store.h"

#include "base/errors.h"
#include "win32/registry.h"

namespace ornavel::win32 {
namespace {

Text path_of(TextView section) { return u"Software\\VB and VBA Program Settings\\Ornavel\\" + Text(section); }

} // namespace

std::optional<Text> RegistryStore::find(TextView section, TextView key) const noexcept {
    std::optional<Text> value;
    attempt([&] {
        if (const auto values = RegistryKey::open(path_of(section))) value = values->text(key);
    });
    return value;
}

void RegistryStore::save(TextView section, TextView key, TextView value) noexcept {
    attempt([&] { RegistryKey::create(path_of(section)).set(key, value); });
}

} // namespace ornavel::win32
