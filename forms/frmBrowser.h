#pragma once

#include "base/errors.h"
#include "base/files.h"
#include "forms/windows.h"
#include "settings/store.h"

namespace ornavel::forms {

/// What the user answers in the preview window. Loading it clears the Send answer; a window that is closed
/// without a choice leaves it so.
struct PreviewAnswers {
    bool send = true;
    bool send_plain = false; ///< the item goes out undressed
    bool vcard_chosen = false;
};

inline constexpr TrapName preview_trap{u"frmBrowser", u"Error showing the preview"};

/// The preview window: shows the composed message and lets the user go through templates and signatures
/// before the message is sent. All of the arguments outlive it. compose gives the message as it would be
/// sent; it is asked again after each change. page is the full path of the file that the browser shows.
class frmBrowser {
public:
    struct Needs {
        settings::Store& settings;
        Files& files;
        Windows& windows;
        ErrorSink& errors;
    };
    frmBrowser(Needs needs, PreviewAnswers& answers, Text page, std::function<Text()> compose);

    Form& form() { return form_; }
    /// Composes the message, writes it to the page's file and shows it. What fails is logged, and the
    /// browser keeps what it shows.
    void render();

private:
    /// A list of files that the user chooses from by their names without extension.
    struct Choice {
        TextView shown, files; ///< the combo box, and the hidden one with the whole names
        const settings::PathKey& folder;
        const settings::TextKey& chosen;
    };
    static const Choice templates, signatures;

    void Form_Load();
    void arrange();
    void Form_Resize();
    void Form_Unload();
    void command1_Click();
    void cmdSendPlain_Click();
    void cmdOptions_Click();
    void on_choice(const Choice& choice);

    void show_options(bool shown);
    void fill(const Choice& choice);
    void take_entry(const Choice& choice);
    void take_next(const Choice& choice);

    Needs needs_;
    PreviewAnswers& answers_;
    Text page_;
    std::function<Text()> compose_;
    Form form_;
};

} // namespace ornavel::forms
