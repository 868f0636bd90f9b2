// What the send-options form shows in other windows: the preview and the help page.
#include "forms/BrevantUser.h"

#include "forms/BrevantUser_traps.h"

#include <utility>

namespace ornavel::forms {

using namespace settings;

namespace {

constexpr TextView close_button =
    u"<form><input type='button' value='Close Preview Window' onClick='window.close()'></form>";
constexpr TextView pasted_images_note = u"<font face=Verdana size=1>Note: pasted images will not appear in "
                                        u"this preview, but will be seen in the sent "
                                        u"version.</font><br>";

} // namespace

void BrevantUser::cmdPreview_Click() {
    trap(errors(), form_preview_trap, [this] { preview(); });
}

void BrevantUser::preview() {
    if (!selection_is_valid()) return;
    dialog_answer_ = false;
    // What is shown first is what the form's own list says.
    template_from_settings_ = false;
    preview_ = {};
    const compose::Composed composed = compose({}, compose::Purpose::preview);
    if (composed.outcome != compose::Outcome::composed) return;
    if (preview_in_window_)
        preview_in_window(composed.html);
    else
        preview_in_browser(composed.html);
    if (preview_.send && form_.is_loaded()) cmdOkToSend_Click();
    save_choices(!template_from_settings_);
}

void BrevantUser::preview_in_window(const Text& message) {
    frmBrowser window(preview_needs(), preview_, needs_.page, [this](TextView boilerplate) {
        return compose(boilerplate, compose::Purpose::preview);
    });
    Form& form = window.form();
    form.load();
    window.show_allowed_buttons();
    for (const TextView name : {u"cmdSendPlain", u"chkvCard"}) form[name].visible = false;
    form[u"command1"].visible = !is_off(settings(), admin::WipeOutBrowserSendButton);
    trap(errors(), attachments_trap, [&] { window.show_attachments(); });
    window.take_saved_place();
    window.show(message);
    needs_.windows.show_modal(form);
    if (std::exchange(preview_.selected, false)) template_from_settings_ = signature_from_settings_ = true;
    sent_to_many_ |= preview_.sent_to_many;
}

/// A browser of its own stays open; the form goes on beside it.
void BrevantUser::preview_in_browser(const Text& message) {
    preview_.send = false;
    Text page(close_button);
    if (is_on(settings(), admin::BrowserWarnPastedImages)) page += pasted_images_note;
    page += line_end;
    needs_.composing.files.write(needs_.page, encode_html(page + message));
    preview_browser_ = host::SeparateBrowser::create(needs_.composing.objects);
    preview_browser_.navigate(needs_.page);
    preview_browser_.show_address_bar(false);
    preview_browser_.fill_screen(true);
    preview_browser_.show_status_bar(false);
    preview_browser_.be_theater(false);
    preview_browser_.show(true);
    needs_.windows.keep_on_top(preview_browser_.window());
}

void BrevantUser::cmdHelp_Click() {
    trap(errors(), help_trap, [this] {
        if (preview_in_window_)
            show_help(preview_needs());
        else
            needs_.launcher.launch(read(settings(), admin::Help), {}, WindowState::normal);
    });
}

frmBrowser::Needs BrevantUser::preview_needs() const {
    return {settings(),  needs_.composing.files, needs_.windows, errors(), needs_.launcher,
            needs_.item, needs_.program_folder};
}

} // namespace ornavel::forms
