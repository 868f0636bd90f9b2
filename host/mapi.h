#pragma once

#include "base/clock.h"
#include "host/mail_item.h"

namespace ornavel::host {

/// A moment as the user's clock shows it, to the second.
LocalTime local_time(Date date);

class Appointment : public ViewOf<u"AppointmentItem"> {
public:
    using ViewOf::ViewOf;
    Text subject() const { return as_text(get({u"Subject"})); }
    LocalTime start() const;
};

/// A collection of appointments, or of those that a filter lets through.
class Appointments : public ViewOf<u"Items"> {
public:
    using ViewOf::ViewOf;
    void sort(TextView property) const { call({u"Sort"}, {Text(property)}); }
    void include_recurrences() const { put({u"IncludeRecurrences"}, true); }
    Appointments restrict(TextView filter) const {
        return Appointments(as_object(call({u"Restrict"}, {Text(filter)})));
    }
    /// Holds nothing when there is none.
    Appointment first() const { return Appointment(as_object_or_nothing(call({u"GetFirst"}))); }
    Appointment next() const { return Appointment(as_object_or_nothing(call({u"GetNext"}))); }
};

class CalendarFolder : public ViewOf<u"Folder"> {
public:
    using ViewOf::ViewOf;
    Appointments items() const { return Appointments(as_object(get({u"Items"}))); }
};

class CurrentUser : public Recipient {
public:
    using Recipient::Recipient;
    Text name() const { return as_text(get({u"Name"})); }
};

/// The user's session with the message store.
class Namespace : public ViewOf<u"NameSpace"> {
public:
    using ViewOf::ViewOf;
    CurrentUser current_user() const { return CurrentUser(as_object(get({u"CurrentUser"}))); }
    CalendarFolder default_calendar() const {
        constexpr std::int32_t calendar = 9;
        return CalendarFolder(as_object(call({u"GetDefaultFolder"}, {calendar})));
    }
};

} // namespace ornavel::host
