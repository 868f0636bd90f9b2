#pragma once

#include "programs/options_assistant/draft.h"
#include "programs/options_assistant/registry_export.h"
#include "programs/options_assistant/registry_import.h"
#include "programs/program.h"
#include "settings/descriptions.h"

namespace ornavel::programs {

/// The window of Ornavel Options: groups, the settings of one, and an editor for the chosen setting. Nothing
/// is written before Save, or before the user has seen what an import would change. The platform outlives it.
class frmOptionsAssistant {
public:
    explicit frmOptionsAssistant(const Platform& platform);
    forms::Form& form() { return form_; }

private:
    void wire();
    void Form_Load();
    void lstGroups_Click();
    void list_settings();
    int place_of(const settings::Description* before) const;
    void show_setting();
    void show_editor(const settings::Description& setting);
    bool is_listed(const settings::Description& setting) const;
    Text line_of(const settings::Description& setting) const;

    const settings::Description* chosen() const;
    void choose(const settings::Description& setting);
    void take_value(Text value);
    void chkValue_Click();
    void cmdReset_Click();
    void cmdBrowseValue_Click();
    void cmdSave_Click();
    void refuse(const settings::Description& setting, TextView objection);
    void cmdClose_Click();
    bool may_close();

    void cmdImport_Click();
    bool read_import(TextView path);
    void cmdTakeOver_Click();
    void show_import(bool shown);
    void leave_import();
    void cmdExport_Click();
    void cmdPreset_Click();
    std::optional<Text> ask_for_new_file(TextView heading, TextView proposed);
    void write(TextView path, Exported which);

    const Platform& platform_;
    Draft draft_;
    std::vector<const settings::Description*> listed_; ///< in the order of their list
    Import import_;
    forms::Form form_;
};

} // namespace ornavel::programs
