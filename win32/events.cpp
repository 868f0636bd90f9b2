#include "win32/events.h"

namespace ornavel::win32 {
namespace {

struct Event {
    host::EventSource source;
    DISPID id;
    TextView name;
};

constexpr Event events[] = {
    {host::EventSource::application, 0xF002, u"ItemSend"},
    {host::EventSource::application, 0xF005, u"OptionsPagesAdd"},
    {host::EventSource::explorers, 0xF001, u"NewExplorer"},
    {host::EventSource::explorer, 0xF008, u"Close"},
    {host::EventSource::button, 1, u"Click"},
};

constexpr IID office_interface(unsigned long number) {
    return {number, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
}

constexpr IID application_events = office_interface(0x0006304E);
constexpr IID explorers_events = office_interface(0x00063078);
constexpr IID explorer_events = office_interface(0x0006304F);
constexpr IID button_events = office_interface(0x000C0351);

} // namespace

const IID& event_interface(host::EventSource source) {
    switch (source) {
    case host::EventSource::application:
        return application_events;
    case host::EventSource::explorers:
        return explorers_events;
    case host::EventSource::explorer:
        return explorer_events;
    default:
        return button_events;
    }
}

std::optional<TextView> event_name(host::EventSource source, DISPID id) {
    for (const auto& event : events)
        if (event.source == source && event.id == id) return event.name;
    return {};
}

std::optional<DISPID> event_id(host::EventSource source, TextView name) {
    for (const auto& event : events)
        if (event.source == source && event.name == name) return event.id;
    return {};
}

} // namespace ornavel::win32
