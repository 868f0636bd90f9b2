#pragma once

#include "diagnostics/error_reports.h"

#include <vector>

namespace ornavel {

/// An error log in memory; a report may be mailed when `offers` is set.
class RecordingReports final : public diagnostics::ErrorReports {
public:
    struct Entry {
        Text description, sub_function, section;
    };
    bool offers = false;
    std::vector<Entry> entries;
    std::vector<Text> mailed;

    void take(TextView description, TrapName trap) noexcept override { log_error(description, trap); }
    std::optional<diagnostics::ErrorReport> log_error(TextView description, TrapName trap) noexcept override {
        entries.push_back({Text(description), Text(trap.sub_function), Text(trap.section)});
        if (!offers) return {};
        return diagnostics::ErrorReport{u"Ornavel Error", Text(description)};
    }
    void mail_report(const diagnostics::ErrorReport& report) noexcept override {
        mailed.push_back(report.text);
    }
};

} // namespace ornavel
