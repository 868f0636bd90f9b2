#pragma once

#include "base/clock.h"
#include "base/file_error.h"
#include "workbench/drives.h"
#include "workbench/lint/page.h"
#include "workbench/lint/rules.h"
#include "workbench/settings_file.h"

namespace ornavel::workbench {

/// What was found at one place.
struct Finding {
    Text file;
    Place at;
    std::string_view rule;
    Severity severity;
    Text message, mend;
};

/// Where what the rules find is kept.
class Findings {
public:
    void add(TextView file, Place at, std::string_view rule, Text message, Text mend);
    std::vector<Finding>& all() { return findings_; }

private:
    std::vector<Finding> findings_;
};

/// Settings to check files by, or to check: without a file, the defaults.
struct Ground {
    const SettingsFile* file = nullptr;
    const settings::MemoryStore& store;
    const Drives& files;
    const Clock& clock;

    bool is_on(const settings::SwitchKey& key) const { return settings::is_on(store, key); }
};

/// One file that is checked, and where to tell what was found in it.
struct Sheet {
    const Ground& ground;
    Text path;
    Role role;
    const std::string& bytes;
    const Page& page;
    Findings& findings;

    /// The position is of the page's text.
    void tell(std::size_t position, std::string_view rule, Text message, Text mend) const {
        findings.add(path, Places(page.text).of(position), rule, std::move(message), std::move(mend));
    }
};

// Each looks after the rules of one kind.
void check_marker(const Sheet& sheet);
void check_fields(const Sheet& sheet);
void check_empty_lines(const Sheet& sheet);
void check_script(const Sheet& sheet);
void check_images(const Sheet& sheet);
void check_layout(const Sheet& sheet);
void check_clean_up(const Sheet& sheet);
void check_charset(const Sheet& sheet);

/// Everything that there is to say about the settings themselves; there is a file.
void check_settings(const Ground& ground, Findings& findings);
void check_values(const Ground& ground, Findings& findings);

/// A text in quotes, shortened.
Text shown(TextView text);

} // namespace ornavel::workbench
