#include "diagnostics/error_reporter.h"

#include "base/flag.h"
#include "host/stamps.h"

namespace ornavel::diagnostics {
namespace {

using namespace settings;

constexpr TextView user_request = u"UserRequest";

} // namespace

/// Runs the body; a failure of the error routine itself becomes a dated note.
template <class Body>
void ErrorReporter::step(Body&& body) noexcept {
    try {
        body();
    } catch (...) {
        const Text failure = current_description();
        attempt([&] {
            services_.log.write_note(
                u"An error has occurred in Ornavel- Procedure Write_to_error_file. The error is:" + failure +
                u" Error trapping - Ornavel");
        });
    }
}

void ErrorReporter::take(TextView description, TrapName trap) noexcept {
    const auto report = log_error(description, trap);
    if (!report) return;
    bool agreed = false;
    step([&] {
        const Flag asking(under_way_);
        agreed = trap.section == user_request || services_.prompt.ask(prompt_modes::support_email_request);
    });
    if (agreed) mail_report(*report);
}

std::optional<ErrorReport> ErrorReporter::log_error(TextView description, TrapName trap) noexcept {
    std::optional<ErrorReport> report;
    step([&] {
        if (services_.on_trap) services_.on_trap(trap);
        if (is_on(services_.settings, admin::ErrorFileSuppressEmail)) {
            services_.log.write_note(Text(description) + u" - " + Text(trap.sub_function) + u" - " +
                                     Text(trap.section));
            return;
        }
        if (is_excepted(description)) return;
        report = log_and_report(
            {services_.log.date(), Text(description), Text(trap.sub_function), Text(trap.section)});
    });
    return report;
}

bool ErrorReporter::is_excepted(TextView description) const {
    // An error without a description stands in no list, though an empty text occurs in any text.
    return !description.empty() &&
           contains(read(services_.settings, admin::ErrorFileExceptions), description);
}

std::optional<ErrorReport> ErrorReporter::log_and_report(const ErrorRecord& error) noexcept {
    attempt([&] { services_.log.location(); });
    ErrorReport report;
    step([&] {
        report.subject = error.section == user_request ? u"User Request for help!" : u"Ornavel Error";
        report.text = report_text(
            error, {services_.settings, services_.machine, services_.application, services_.addin_folder});
    });
    step([&] { services_.log.append_error(error.description, {error.sub_function, error.section}); });
    if (under_way_ || !is_on(services_.settings, admin::EmailErrorNotify)) return {};
    return report;
}

void ErrorReporter::mail_report(const ErrorReport& report) noexcept {
    const Flag mailing(under_way_);
    step([&] { send_mail(report); });
}

void ErrorReporter::send_mail(const ErrorReport& report) {
    const host::MailItem item = services_.application.create_mail();
    const auto mail = host::SafeMailItem::around(services_.objects, item);
    mail.set_subject(report.subject);
    mail.set_billing_information(host::stamps::preview_send);
    mail.set_delete_after_submit(true);
    mail.set_body(report.text + editor_lines(item, services_.application));
    const auto recipient = mail.recipients().add(read(services_.settings, admin::EmailAddressNotify));
    attempt([&] { recipient.resolve(); });
    // A report whose log can't be attached is still worth sending.
    step([&] { mail.attachments().add(read(services_.settings, admin::ErrorFileLocation)); });
    mail.send();
}

} // namespace ornavel::diagnostics
