#pragma once

#include "diagnostics/error_log.h"
#include "diagnostics/error_reports.h"
#include "diagnostics/prompt.h"
#include "diagnostics/report_text.h"

#include <functional>

namespace ornavel::diagnostics {

/// The error routine of the add-in: logs, asks, and mails the report to support. All of its services outlive
/// it. An error that arrives while a report is under way (the question is open, or the mail is being sent) is
/// logged only.
class ErrorReporter final : public ErrorReports {
public:
    struct Services {
        const settings::Store& settings;
        ErrorLog& log;
        Prompt& prompt;
        const SystemInformation& machine;
        host::Objects& objects;
        const host::Application& application; ///< the mail client; may hold nothing
        Text addin_folder;
        std::function<void(TrapName)> on_trap = {}; ///< told each trap that is sprung; may be empty
    };

    explicit ErrorReporter(Services services) : services_(std::move(services)) {}

    /// The section "UserRequest" is a user's own request for help: it is mailed without asking.
    void Write_to_error_file(TextView description, TextView sub_function, TextView section) noexcept {
        take(description, {sub_function, section});
    }
    void take(TextView description, TrapName trap) noexcept override;
    std::optional<ErrorReport> log_error(TextView description, TrapName trap) noexcept override;
    void mail_report(const ErrorReport& report) noexcept override;

private:
    bool is_excepted(TextView description) const;
    std::optional<ErrorReport> log_and_report(const ErrorRecord& error) noexcept;
    void send_mail(const ErrorReport& report);
    template <class Body>
    void step(Body&& body) noexcept;

    Services services_;
    bool under_way_ = false;
};

} // namespace ornavel::diagnostics
