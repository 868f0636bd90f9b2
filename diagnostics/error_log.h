#pragma once

#include "base/clock.h"
#include "base/errors.h"
#include "base/files.h"
#include "settings/store.h"

namespace ornavel::diagnostics {

/// The error log: one line for each event, appended to the file that the setting "ErrorFileLocation" names,
/// in UTF-8 with CR LF. Nothing here throws; a line that can't be written is lost.
class ErrorLog final : public ErrorSink {
public:
    /// The add-in's folder has no backslash at its end; the default log stands below it.
    ErrorLog(settings::Store& settings, Files& files, const Clock& clock, TextView addin_folder)
        : settings_(settings), files_(files), clock_(clock), addin_folder_(addin_folder) {}

    /// Logs an error, unless its description occurs in the setting "ErrorFileExceptions".
    void Write_to_error_file(TextView description, TextView sub_function, TextView section) noexcept override;

    /// A "System Check: " line. It makes a named file that is missing, but never chooses one.
    void SystemCheck(TextView first, TextView second, TextView third) noexcept;

    /// A dated note; chooses and creates the log when none is named.
    void write_note(TextView text) noexcept;

private:
    Text Create_Error_Log_File();
    Text location();
    Text date() const;
    void append_line(TextView path, TextView line);

    settings::Store& settings_;
    Files& files_;
    const Clock& clock_;
    Text addin_folder_;
};

} // namespace ornavel::diagnostics
