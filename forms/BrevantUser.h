#pragma once

#include "forms/frmBrowser.h"
#include "forms/string_table.h"
#include "host/browser.h"

namespace ornavel::forms {

/// The send-options form: dresses one message as the user chooses, or lets it go as it is. It sets the item's
/// options and body itself; whoever shows it sends the item when the answer is to. All of the arguments
/// outlive it.
class BrevantUser {
public:
    struct Needs {
        const compose::Services& composing;
        Windows& windows;
        Launcher& launcher;
        const StringTable& strings;
        const host::MailItem& item; ///< the current item; it may be let go of while the form is open
        Text page;                  ///< the file in which a preview is shown
        Text program_folder;        ///< where the programs beside the add-in lie
        Text language;              ///< of the option words
        std::function<compose::Reply()> find_reply; ///< whether the item answers another one; may throw
    };
    /// The dialog answer, whether the item is to be sent, is written while the form is open, too.
    BrevantUser(Needs needs, bool& dialog_answer);

    Form& form() { return form_; }
    /// Whether the message was dressed with the vCard box ticked.
    bool vcard_chosen() const { return vcard_chosen_; }
    /// Whether the preview handed the message to another program.
    bool sent_to_many() const { return sent_to_many_; }

private:
    void wire();
    settings::Store& settings() const { return needs_.composing.settings; }
    diagnostics::ErrorReports& errors() const { return needs_.composing.errors; }

    // BrevantUser.cpp
    void Form_Load();
    void Form_Unload();
    void cmdSendAsIs_Click();
    void cmdCancel_Click();
    void cmdOptions_Click();
    void chkShowMessage_Click();
    void txtHeader_DblClick();
    void show_layout(int height);
    void show_logo();

    // BrevantUser_load.cpp
    void load_item_options();
    void load_defaults();
    void load_layout();
    void load_tips_box();
    void list_files();
    void load_vcards();
    void show_next_tip();

    // BrevantUser_vcard.cpp
    void chkvCard_Click();
    void cbovCard_Click();
    void list_vcards();
    void save_selected_vcard();

    // BrevantUser_send.cpp
    void cmdOkToSend_Click();
    bool selection_is_valid();
    bool dress(TrapName trap);
    compose::Composed compose(TextView boilerplate, compose::Purpose purpose);
    Text template_name();
    void save_choices(bool with_template);
    void save_defaults();
    void save_height();

    // BrevantUser_preview.cpp
    void cmdPreview_Click();
    void preview();
    void preview_in_window(const Text& message);
    void preview_in_browser(const Text& message);
    void cmdHelp_Click();
    frmBrowser::Needs preview_needs() const;

    Needs needs_;
    bool& dialog_answer_;
    bool proceed_ = false; ///< becomes the dialog answer when the form unloads
    bool vcard_chosen_ = false;
    bool sent_to_many_ = false;
    bool preview_in_window_ = true;
    bool template_from_settings_ = false; ///< it was chosen in the preview
    bool signature_from_settings_ = false;
    PreviewAnswers preview_;
    host::SeparateBrowser preview_browser_;
    Text internet_path_; ///< kept for nobody
    Form form_;
};

/// Every trap of the form, for those who watch which of them are sprung.
std::vector<TrapName> send_options_traps();

} // namespace ornavel::forms
