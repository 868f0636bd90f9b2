#include "rehearsal/model/calendar.h"

#include "rehearsal/model/mail_client.h"

#include <algorithm>
#include <chrono>

namespace ornavel::rehearsal {
namespace {

using host::Value;

host::Date date_of(const LocalTime& time) {
    using namespace std::chrono;
    const sys_days day = year(time.year) / time.month / time.day;
    const auto days = (day - sys_days(year(1899) / December / 30)).count();
    const int seconds = (time.hour * 60 + time.minute) * 60 + time.second;
    return {static_cast<double>(days) + seconds / 86400.0};
}

void must_be_start(TextView property) {
    if (!same_name(property, u"[Start]")) throw host::Error(u"The property is unknown.");
}

Value sort(const Call& call) {
    must_be_start(call.text(0));
    auto& appointments = call.as<CalendarItemsNode>().appointments;
    std::stable_sort(
        appointments.begin(), appointments.end(),
        [](const Appointment& left, const Appointment& right) { return left.start < right.start; });
    if (call.given(1) && call.flag(1)) std::reverse(appointments.begin(), appointments.end());
    return {};
}

Value restrict_items(const Call& call) {
    return call.client.hand_out(std::make_shared<CalendarItemsNode>(
        restricted(call.as<CalendarItemsNode>().appointments, call.text(0))));
}

Value get_next(const Call& call) {
    auto& items = call.as<CalendarItemsNode>();
    if (items.next >= items.appointments.size()) return host::ObjectPtr();
    return call.client.hand_out(std::make_shared<AppointmentNode>(items.appointments[items.next++]));
}

Value get_first(const Call& call) {
    call.as<CalendarItemsNode>().next = 0;
    return get_next(call);
}

constexpr MemberRow items_members[] = {
    property<CalendarItemsNode, &CalendarItemsNode::with_recurrences>(u"IncludeRecurrences"),
    method(u"Sort", sort, 1, 2),
    method(u"Restrict", restrict_items, 1, 1),
    method(u"GetFirst", get_first),
    method(u"GetNext", get_next),
};

constexpr MemberRow appointment_members[] = {
    read_only<AppointmentNode, &Appointment::subject>(u"Subject"),
    method(u"Start", [](const Call& call) -> Value { return date_of(call.as<AppointmentNode>().start); }),
};

constexpr MemberRow calendar_members[] = {
    method(u"Name", [](const Call&) -> Value { return Text(u"Calendar"); }),
    method(u"Items",
           [](const Call& call) -> Value {
               return call.client.hand_out(std::make_shared<CalendarItemsNode>(call.client.host().calendar));
           }),
};

} // namespace

const Class& AppointmentNode::what() const {
    static constexpr Class table{u"AppointmentItem", appointment_members};
    return table;
}
const Class& CalendarItemsNode::what() const {
    static constexpr Class table{u"Items", items_members};
    return table;
}
const Class& CalendarFolderNode::what() const {
    static constexpr Class table{u"Folder", calendar_members};
    return table;
}

} // namespace ornavel::rehearsal
