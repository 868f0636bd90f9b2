#pragma once

#include "base/system_information.h"
#include "host/application.h"
#include "settings/store.h"

namespace ornavel::diagnostics {

/// An error as a routine hands it over, and the time at which it was handed over, as logs write it.
struct ErrorRecord {
    Text date, description, sub_function, section;
};

/// What a report is gathered from.
struct ReportSources {
    const settings::Store& settings;
    const SystemInformation& machine;
    const host::Application& application;
    TextView addin_folder;
};

/// The text of the report to support: the error, versions, settings as stored, and the machine. What the mail
/// client or the platform doesn't tell is left out.
Text report_text(const ErrorRecord& error, const ReportSources& sources);

/// How the item is edited, as two lines for the report, each with its line end in front. What the mail
/// client doesn't tell is left out.
Text editor_lines(const host::MailItem& item, const host::Application& application);

} // namespace ornavel::diagnostics
