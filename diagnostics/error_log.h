#pragma once

#include "base/clock.h"
#include "base/errors.h"
#include "base/files.h"
#include "settings/store.h"

namespace ornavel::diagnostics {

/// "mm-dd-yyyy hh:mm:ss": the form of every date in logs and reports.
Text log_date(const LocalTime& time);

/// The error log: one line for each event, appended to the file that the setting "ErrorFileLocation" names,
/// in UTF-8 with CR LF.
class ErrorLog {
public:
    /// The add-in's folder has no backslash at its end; the default log stands below it.
    ErrorLog(settings::Store& settings, Files& files, const Clock& clock, TextView addin_folder)
        : settings_(settings), files_(files), clock_(clock), addin_folder_(addin_folder) {}

    /// The path of the log; where none is named, creates the default log and names it. Throws Failure when
    /// that can't be done.
    Text location();

    /// An error's line. Throws Failure when it can't be written.
    void append_error(TextView description, TrapName trap);

    /// A dated note; chooses and creates the log when none is named. A note that can't be written is lost.
    void write_note(TextView text) noexcept;

    /// A "System Check: " line. It makes a named file that is missing, but never chooses one. A line that
    /// can't be written is lost.
    void SystemCheck(TextView first, TextView second, TextView third) noexcept;

    Text date() const { return log_date(clock_.now()); }

private:
    Text Create_Error_Log_File();
    void append_line(TextView path, TextView line);

    settings::Store& settings_;
    Files& files_;
    const Clock& clock_;
    Text addin_folder_;
};

} // namespace ornavel::diagnostics
