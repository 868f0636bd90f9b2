#pragma once

#include "rehearsal/model/node.h"
#include "rehearsal/scenario.h"

namespace ornavel::rehearsal {

struct AppointmentNode final : Node, Appointment {
    explicit AppointmentNode(Appointment appointment) : Appointment(std::move(appointment)) {}
    const Class& what() const override;
};

/// Appointments, in the order that was asked for, and the place of a walk through them.
struct CalendarItemsNode final : Node {
    explicit CalendarItemsNode(std::vector<Appointment> entries) : appointments(std::move(entries)) {}
    const Class& what() const override;
    std::vector<Appointment> appointments;
    bool with_recurrences = false;
    std::size_t next = 0;
};

/// The user's calendar.
struct CalendarFolderNode final : Node {
    const Class& what() const override;
};

/// The appointments that meet a filter: comparisons of [Start] with a time in quotes, joined by "and". Throws
/// host::Error for any other filter.
std::vector<Appointment> restricted(const std::vector<Appointment>& appointments, TextView filter);

} // namespace ornavel::rehearsal
