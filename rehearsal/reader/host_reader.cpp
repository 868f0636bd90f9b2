#include "rehearsal/reader/parts.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

constexpr TextView creatable[] = {
    u"Outlook.Application",
    u"Redemption.SafeMailItem",
    u"BrevantPage.PropPage",
    u"ADODB.Connection",
    u"InternetExplorer.Application",
    u"Scripting.FileSystemObject",
    u"winmgmts",
};

std::uint64_t size_in_bytes(const JsonPlace& place) {
    return static_cast<std::uint64_t>(place.number(0, std::numeric_limits<std::int64_t>::max()));
}

void read_system(Computer& computer, const JsonPlace& place) {
    place.fields({
        {"platform", [&](const JsonPlace& at) { computer.os_platform = at.small_number(0); }},
        {"major", [&](const JsonPlace& at) { computer.os_major = at.small_number(0); }},
        {"minor", [&](const JsonPlace& at) { computer.os_minor = at.small_number(0); }},
        {"build", [&](const JsonPlace& at) { computer.os_build = at.small_number(0); }},
    });
}

void read_memory(Computer& computer, const JsonPlace& place) {
    place.fields({
        {"total physical", [&](const JsonPlace& at) { computer.total_physical = size_in_bytes(at); }},
        {"available physical", [&](const JsonPlace& at) { computer.available_physical = size_in_bytes(at); }},
        {"total virtual", [&](const JsonPlace& at) { computer.total_virtual = size_in_bytes(at); }},
        {"available virtual", [&](const JsonPlace& at) { computer.available_virtual = size_in_bytes(at); }},
    });
}

Appointment read_appointment(const JsonPlace& place) {
    Appointment appointment;
    place.fields({
        {"subject", [&](const JsonPlace& at) { appointment.subject = at.text(); }},
        {"start", [&](const JsonPlace& at) { appointment.start = at.time(); }},
    });
    if (!place.json().contains("start")) place.refuse("start: missing");
    return appointment;
}

Named<bool> read_objects(const JsonPlace& place) {
    Named<bool> objects;
    place.each_member([&](const Text& name, const JsonPlace& at) {
        if (std::none_of(std::begin(creatable), std::end(creatable),
                         [&](TextView known) { return same_name(known, name); }))
            at.refuse("unknown object");
        objects.emplace_back(name, at.flag());
    });
    return objects;
}

void read_current_user(Host& host, const JsonPlace& place) {
    place.fields({
        {"name", [&](const JsonPlace& at) { host.user_name = at.text(); }},
        {"address", [&](const JsonPlace& at) { host.user_address = at.text(); }},
    });
}

} // namespace

Computer read_computer(const JsonPlace& place) {
    Computer computer;
    place.fields({
        {"name", [&](const JsonPlace& at) { computer.name = at.text(); }},
        {"user", [&](const JsonPlace& at) { computer.user = at.text(); }},
        {"addin folder",
         [&](const JsonPlace& at) {
             computer.addin_folder = at.text();
             if (computer.addin_folder.ends_with(u'\\')) computer.addin_folder.pop_back();
         }},
        {"os", [&](const JsonPlace& at) { read_system(computer, at); }},
        {"cpu", [&](const JsonPlace& at) { computer.cpu = at.small_number(0); }},
        {"memory", [&](const JsonPlace& at) { read_memory(computer, at); }},
    });
    return computer;
}

Host read_host(const JsonPlace& place) {
    Host host;
    place.fields({
        {"version", [&](const JsonPlace& at) { host.version = at.text(); }},
        {"explorers", [&](const JsonPlace& at) { host.explorers = static_cast<int>(at.number(0, 1000)); }},
        {"current user", [&](const JsonPlace& at) { read_current_user(host, at); }},
        {"calendar",
         [&](const JsonPlace& at) {
             at.each_element([&](const JsonPlace& one) { host.calendar.push_back(read_appointment(one)); });
         }},
        {"objects", [&](const JsonPlace& at) { host.objects = read_objects(at); }},
        {"own mails raise ItemSend",
         [&](const JsonPlace& at) { host.own_mails_raise_item_send = at.flag(); }},
    });
    return host;
}

} // namespace ornavel::rehearsal
