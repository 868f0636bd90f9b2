#include "connect/gates.h"

#include "host/registry.h"
#include "host/stamps.h"

#include <algorithm>

namespace ornavel::connect {
namespace {

using namespace settings;
using namespace forms::text_ids;

constexpr TextView profiles =
    u"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows Messaging Subsystem\\Profiles";

/// Where the mail client keeps the user's stationery.
struct StationeryPlace {
    Text key;
    TextView value_name;
};

Text lines(const Send& send, std::initializer_list<int> ids) {
    Text result;
    for (const int id : ids) {
        if (!result.empty()) result += line_end;
        result += forms::load_text(send.session.platform.strings, id);
    }
    return result;
}

void inform(Send& send, const Text& text) { send.session.platform.windows.inform(u"Ornavel", text); }

/// Each statement stands alone: whatever fails, the rest is done and the send stays cancelled.
void refuse(Send& send, const host::RegistryProvider& registry, const StationeryPlace& place,
            const Text& found) {
    attempt([&] {
        inform(send, found + Text(line_end) +
                         lines(send, {stationery_in_use, stationery_cancel, stationery_removed,
                                      stationery_cannot_be_sent}));
    });
    send.session.processed = false;
    send.cancel = true;
    attempt([&] { send.item().set_billing_information(host::stamps::refused); });
    attempt([&] { send.item().save(); });
    attempt([&] { registry.set_user_string(place.key, place.value_name, u""); });
}

bool refused_for(Send& send, const host::RegistryProvider& registry, const StationeryPlace& place) {
    Text found;
    attempt([&] { found = registry.user_string(place.key, place.value_name); });
    if (found.empty()) return false;
    refuse(send, registry, place, found);
    return true;
}

bool refused_for_stationery(Send& send) {
    host::RegistryProvider registry;
    attempt([&] {
        registry = host::RegistryProvider::of(send.session.platform.objects,
                                              send.session.platform.machine.computer_name());
    });
    Text profile;
    attempt([&] { profile = registry.user_string(profiles, u"DefaultProfile"); });
    const StationeryPlace places[] = {
        {Text(profiles) + u"\\" + profile + u"\\0a0d020000000000c000000000000046", u"001e0360"},
        {u"Software\\Microsoft\\Office\\10.0\\Common\\MailSettings", u"NewStationery"},
        {u"Software\\Microsoft\\Office\\11.0\\Common\\MailSettings", u"NewStationery"},
    };
    return std::ranges::any_of(places, [&](const auto& place) { return refused_for(send, registry, place); });
}

bool refused_before(const Send& send) {
    bool marked = false;
    attempt([&] { marked = send.item().billing_information() == host::stamps::refused; });
    return marked;
}

} // namespace

Verdict personal_stationery(Send& send) {
    if (!is_on(send.settings(), admin::WipeoutPersonalStationery)) return Verdict::off;
    if (refused_for_stationery(send)) return Verdict::leave;
    if (!refused_before(send)) return Verdict::next;
    send.cancel = true;
    attempt([&] { inform(send, lines(send, {stationery_in_use, stationery_cancel, stationery_removed})); });
    return Verdict::leave;
}

} // namespace ornavel::connect
