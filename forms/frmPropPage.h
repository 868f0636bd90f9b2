#pragma once

#include "base/files.h"
#include "base/launcher.h"
#include "forms/windows.h"
#include "settings/changes.h"

namespace ornavel::forms {

/// The page in the mail client's Options dialog: the user's everyday choices. The dialog around it has the
/// buttons; nothing is written before apply. The needs outlive it.
class frmPropPage {
public:
    struct Needs {
        settings::Store& settings;
        const Files& files;
        Windows& windows;
        Launcher& launcher;
        Text program_folder; ///< where the programs beside the add-in lie
        /// Does what a click on the toolbar's mode button does besides saving the mode.
        std::function<void(TextView before, TextView now)> change_mode;
        std::function<void()> on_status_change; ///< told each change that the user makes
    };
    explicit frmPropPage(Needs needs);

    Form& form() { return form_; }
    /// Whether the user has chosen something else than was stored.
    bool is_dirty() const { return !changes().empty(); }
    /// Writes what the user has chosen anew; what another program has written meanwhile stays. Where that
    /// fails, what was written is taken back, and the user is told.
    void apply();

private:
    /// A list of files, each shown by its display name.
    struct Choice {
        TextView control;
        const settings::PathKey& folder;
        const settings::TextKey& chosen;
        bool may_be_none;
    };
    static const Choice choices[2];
    /// What is chosen; the mode is empty where none is.
    struct Chosen {
        Text mode, files[2];
        bool preview = false, as_is = false;
    };

    void Form_Load();
    void Form_Resize();
    void show_whole_names();
    void cmdSetup_Click();
    void list_modes();
    void list_mode(TextView mode, TextView words);
    void list_files(std::size_t choice);
    std::vector<settings::Change> changes() const;
    Chosen chosen() const;
    Text chosen_mode() const;
    Text chosen_file(std::size_t choice) const;
    bool is_ticked(TextView check_box) const;

    Needs needs_;
    std::vector<Text> modes_;    ///< in the order of their list
    std::vector<Text> files_[2]; ///< in the order of the lists
    Text unlisted_[2];           ///< a stored name that is not in its list
    Chosen before_;              ///< what was chosen when the page was loaded or applied
    Form form_;
};

} // namespace ornavel::forms
