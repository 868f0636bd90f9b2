#pragma once

#include "host/application.h"
#include "rehearsal/native/memory_machine.h"
#include "rehearsal/outcome.h"

namespace ornavel::rehearsal {

/// A mail client on a machine in memory, out of a scenario's text.
struct Stage {
    explicit Stage(const std::string& json)
        : scenario(read_scenario(parse_json(json, "stage"), "stage", Binding::native)),
          failures(scenario.fail), machine(scenario, "stage", failures, journal),
          client(scenario, machine, failures, journal) {
        machine.prepare(scenario);
    }
    host::Application application() { return host::Application(client.application()); }
    host::MailItem item(std::size_t index) { return host::MailItem(client.hand_out(client.items[index])); }
    std::size_t held() { return client.references()->held(); }

    Scenario scenario;
    Failures failures;
    Journal journal;
    MemoryMachine machine;
    MailClient client;
};

/// The words of the host's error, or that there was none.
inline Text description_of(const std::function<void()>& body) {
    try {
        body();
    } catch (const host::Error& error) {
        return error.description();
    }
    return u"nothing failed";
}

} // namespace ornavel::rehearsal
