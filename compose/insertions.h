#pragma once

#include "base/clock.h"
#include "base/errors.h"
#include "base/files.h"
#include "host/application.h"
#include "settings/store.h"

namespace ornavel::compose {

inline constexpr TrapName next_appointment_trap{u"next_appointment", u"NextAppointment_Err"};
inline constexpr TrapName next_quote_trap{u"GetNextQuote", u"GetNextQuote_Err"};
inline constexpr TrapName next_tip_trap{u"next_tip", u"NextTip_Err"};
inline constexpr TrapName boilerplate_trap{u"boilerplate_text", u"Boilerplate_Err"};

/// The next of today's appointments, as "Review at 4:00 PM"; empty when there is none. A calendar that can't
/// be read counts as empty and is written to the error log.
Text next_appointment(const host::Application& application, const Clock& clock, ErrorSink& errors) noexcept;

/// Takes the next quote of the tips file in turn and stores it in the setting "SendQuoteString". A file that
/// can't be read is written to the error log and leaves the settings as they are.
void GetNextQuote(settings::Store& settings, const Files& files, ErrorSink& errors) noexcept;

/// The same quote in turn, for a window: it is given back, and stored nowhere. Without a tips file there is
/// none, and nothing is written.
Text next_tip(settings::Store& settings, const Files& files, ErrorSink& errors) noexcept;

/// A boilerplate as HTML; empty for no name and for "None". One that can't be read is written to the error
/// log and empty.
Text boilerplate_text(const settings::Store& settings, const Files& files, TextView name,
                      ErrorSink& errors) noexcept;

/// The part of a file name before "_template". Throws Failure when there is none.
Text template_base_name(TextView file_name);

} // namespace ornavel::compose
