#pragma once

#include "base/errors.h"
#include "base/files.h"
#include "base/launcher.h"
#include "compose/composer.h"
#include "forms/windows.h"
#include "settings/store.h"

namespace ornavel::forms {

/// What the user answers in the preview window. Loading it clears the Send answer; a window that is closed
/// without a choice leaves it so.
struct PreviewAnswers {
    bool send = true;
    bool send_plain = false; ///< the item goes out undressed
    bool vcard_chosen = false;
    bool selected =
        false; ///< the message was composed anew: its template and signature come from the settings
    bool sent_to_many = false; ///< another program reads the page
    Text boilerplate{};        ///< the file that is put in front of the message; empty for none
};

inline constexpr TrapName preview_trap{u"frmBrowser", u"Error showing the preview"};
inline constexpr TrapName send_to_many_trap{u"cmdSendToMany_Click", u"Error sending to many"};

/// The preview window: shows the composed message and lets the user change its template, signature,
/// background and boilerplate before it is sent; also the viewer of the help page. All of the arguments
/// outlive it.
class frmBrowser {
public:
    struct Needs {
        settings::Store& settings;
        Files& files;
        Windows& windows;
        ErrorSink& errors;
        Launcher& launcher;
        const host::MailItem& item; ///< whose message is shown
        Text program_folder;        ///< where the programs beside the add-in lie
    };
    /// Gives the message as it would be sent with this boilerplate in front; asked again after each change.
    using Compose = std::function<compose::Composed(TextView boilerplate)>;

    /// page is the full path of the file that the browser shows.
    frmBrowser(Needs needs, PreviewAnswers& answers, Text page, Compose compose);

    Form& form() { return form_; }
    /// Composes the message and shows it. One that can't be composed leaves the browser what it shows.
    void render();
    /// Writes the message to the page's file and shows it. What fails is logged.
    void show(const Text& message);

    // For whoever opens the loaded window.
    void show_allowed_buttons();
    void show_attachments();
    void take_saved_place();
    void become_help_viewer();

private:
    /// A list of files that the user chooses from by their names without extension.
    struct Choice {
        TextView shown, files; ///< the combo box, and the hidden one with the whole names
        const settings::PathKey& folder;
        const settings::TextKey& chosen;
    };
    static const Choice templates, signatures;

    void wire();
    void Form_Load();
    void arrange();
    void Form_Resize();
    void Form_Unload();
    void command1_Click();
    void cmdSendPlain_Click();
    void cmdSendToMany_Click();
    void cmdOptions_Click();
    void cboSig_Click();
    void cboBGColourName_Click();
    void cboBplates_Click();
    void on_choice(const Choice& choice);

    void list_boilerplates();
    void list_profiles();
    void list_colours();
    void show_options(bool shown);
    void fill(const Choice& choice);
    void take_entry(const Choice& choice);
    void take_next(const Choice& choice);
    void render_anew();

    Needs needs_;
    PreviewAnswers& answers_;
    Text page_;
    Compose compose_;
    Text boilerplate_; ///< the one that is chosen now
    Form form_;
};

/// Shows the page that the setting "Help" names. Looking at it changes no saved place.
void show_help(const frmBrowser::Needs& needs);

} // namespace ornavel::forms
