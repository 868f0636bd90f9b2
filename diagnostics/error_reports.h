#pragma once

#include "base/errors.h"

#include <optional>

namespace ornavel::diagnostics {

/// What goes to support about one error.
struct ErrorReport {
    Text subject;
    Text text;
    bool operator==(const ErrorReport&) const = default;
};

/// Takes errors as every sink does, and lets a routine that puts its own question to the user log an error
/// first and mail it later. Never throws.
class ErrorReports : public ErrorSink {
public:
    /// Logs the error but asks nobody. Gives back the report when it may be mailed: not for an error that is
    /// excepted or only noted, not while mail to support is off, and not while another report is under way.
    virtual std::optional<ErrorReport> log_error(TextView description, TrapName trap) noexcept = 0;

    /// Mails the report to support, with the log attached.
    virtual void mail_report(const ErrorReport& report) noexcept = 0;
};

/// Logs what a trap caught and asks nobody.
class QuietErrors final : public ErrorSink {
public:
    explicit QuietErrors(ErrorReports& errors) : errors_(errors) {}
    void take(TextView description, TrapName trap) noexcept override { errors_.log_error(description, trap); }

private:
    ErrorReports& errors_;
};

} // namespace ornavel::diagnostics
