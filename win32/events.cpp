#include "win32/events.h"

namespace ornavel::win32 {
namespace {

struct Event {
    host::EventSource source;
    DISPID id;
    TextView name;
};

// As the mail client's type library has them since version 9, and the command bars' in Office's: Activate and
// Close of a window are the numbers 0xF001 and 0xF008 of InspectorEvents, {0006307D-…}; NewInspector is
// 0xF001 of InspectorsEvents, {00063079-…}. Version 10 added InspectorEvents_10, {0006302A-…}, which version
// 9 does not have.
constexpr Event events[] = {
    {host::EventSource::application, 0xF002, u"ItemSend"},
    {host::EventSource::application, 0xF005, u"OptionsPagesAdd"},
    {host::EventSource::explorers, 0xF001, u"NewExplorer"},
    {host::EventSource::explorer, 0xF008, u"Close"},
    {host::EventSource::inspectors, 0xF001, u"NewInspector"},
    {host::EventSource::inspector, 0xF001, u"Activate"},
    {host::EventSource::inspector, 0xF008, u"Close"},
    {host::EventSource::button, 1, u"Click"},
};

constexpr IID office_interface(unsigned long number) {
    return {number, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};
}

constexpr IID application_events = office_interface(0x0006304E);
constexpr IID explorers_events = office_interface(0x00063078);
constexpr IID explorer_events = office_interface(0x0006304F);
constexpr IID inspectors_events = office_interface(0x00063079);
constexpr IID inspector_events = office_interface(0x0006307D);
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
    case host::EventSource::inspectors:
        return inspectors_events;
    case host::EventSource::inspector:
        return inspector_events;
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
