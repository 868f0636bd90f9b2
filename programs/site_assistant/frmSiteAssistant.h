#pragma once

#include "programs/program.h"
#include "programs/site_assistant/fields.h"

#include <map>

namespace ornavel::programs {

/// The wizard Ornavel Setup: shows the user's settings page by page, and writes those that changed when the
/// user finishes it. The platform outlives it.
class frmSiteAssistant {
public:
    explicit frmSiteAssistant(const Platform& platform);

    forms::Form& form() { return form_; }

private:
    void wire();

    // frmSiteAssistant.cpp
    void Form_Load();
    void Form_Unload();
    void cmdBack_Click();
    void cmdNext_Click();
    void cmdFinish_Click();
    void cmdCancel_Click();
    bool may_be_closed();
    void propose();
    void propose_identity();
    void show_page(std::size_t page);
    TextView frame() const;
    bool is_skipped(std::size_t page);
    bool page_may_be_left();
    void ask_about_markup();
    void tell(TextView sentence, TextView whole = {});
    bool is_changed();
    std::vector<settings::Change> changes();

    // frmSiteAssistant_pages.cpp
    void open_letterhead();
    void open_ready();
    void show_whole_names();
    void list_stationery();
    void render();
    void folder_typed(TextView control);
    void browse(TextView control, forms::PathQuestion question);
    Text page_of_preview() const { return platform_.scratch_folder + u"\\OrnavelSetupPreview.html"; }

    const Platform& platform_;
    std::size_t page_ = 0;
    bool is_unseen_ = false;            ///< a folder was named and not looked into yet
    Text warned_;                       ///< what the user was told of this page, and may pass
    std::map<Text, Text> kept_;         ///< values that the user wants as markup, by their controls
    std::vector<Beginning> beginnings_; ///< of the fields, in their order
    forms::Form form_;
};

} // namespace ornavel::programs
