#include "tests/gallery/stage.h"

#include "forms/form_user.h"
#include "forms/frmSysTray.h"
#include "programs/mass_mailer/frmMassMailer.h"
#include "programs/site_assistant/frmSiteAssistant.h"
#include "win32/notification_icon.h"

namespace ornavel::gallery {

using namespace settings;

namespace {

/// A notification area whose user right-clicks the icon and picks one entry, or leaves the menu open.
class PickingTray final : public forms::Tray {
public:
    std::optional<std::size_t> picked;

    void show(TextView tip, std::function<void(int)> handler) override {
        handler_ = handler;
        icon_.show(tip, std::move(handler));
    }
    void hide() override { icon_.hide(); }
    std::optional<std::size_t> pop_up(std::span<const forms::MenuEntry> entries) override {
        return picked ? picked : icon_.pop_up(entries);
    }
    void right_click() { handler_(WM_RBUTTONUP); }

private:
    win32::NotificationIcon icon_;
    std::function<void(int)> handler_;
};

} // namespace

Stage::Stage() {
    for (const Text& file : files.list(folder.substr(0, folder.size() - 1))) files.remove(folder + file);
    files.create_folder(folder);
    for (const TextView name : {u"letter.htm", u"card.htm", u"invitation.htm"})
        write(name, "<html><body>[#Input your message here#]</body></html>");
    write(u"tips.txt",
          std::string(20, '\n') +
              "15 A double click on these words shows another tip; there are many of them, and each one "
              "tells of something that saves a minute every day.\r\n");
    const Text path = folder.substr(0, folder.size() - 1);
    set(admin::HTMFilesPath, path);
    set(admin::SignaturesPath, path);
    set(admin::TipsFileLocation, folder + u"tips.txt");
    set(user::Template, u"letter.htm");
    set(user::Signature, u"none");
    host_item->values = {{u"HTMLBody", Text(u"<p>Hello Ann</p>")}, {u"Importance", std::int32_t{1}}};
}

void Stage::show_options(std::function<void(forms::Form&)> change) {
    const compose::Services composing{store, files, clock, windows, objects, errors, application, start_up};
    bool answer = false;
    forms::BrevantUser options({.composing = composing,
                                .windows = windows,
                                .launcher = launcher,
                                .strings = forms::built_in_strings(),
                                .item = item,
                                .page = folder + u"page.html",
                                .program_folder = folder,
                                .language = language,
                                .find_reply = [] { return compose::Reply(); }},
                               answer);
    options.form().load();
    if (change) change(options.form());
    windows.show_modal(options.form());
}

void Stage::show_preview(std::function<void(forms::frmBrowser&)> change) {
    forms::PreviewAnswers answers;
    forms::frmBrowser preview({store, files, windows, errors, launcher, item, folder}, answers,
                              folder + u"page.html", [](TextView) {
                                  return compose::Composed{
                                      .html = u"<html><body><h1>Hello</h1>A message.</body></html>"};
                              });
    preview.form().load();
    if (change) change(preview);
    preview.take_saved_place();
    preview.render();
    windows.show_modal(preview.form());
}

void Stage::show_help() { forms::show_help({store, files, windows, errors, launcher, item, folder}); }

void Stage::show_tray(TextView entry) {
    PickingTray tray;
    forms::frmSysTray menu({store,
                            windows,
                            tray,
                            forms::built_in_strings(),
                            machine,
                            launcher,
                            errors,
                            application,
                            folder,
                            {}});
    menu.form().load();
    const auto& controls = menu.form().controls();
    for (std::size_t i = 0; i < controls.size(); ++i)
        if (!entry.empty() && controls[i].name == entry) tray.picked = i;
    tray.right_click();
    menu.form().unload();
}

void Stage::show_prompt(TextView mode) { forms::PromptDialog(windows, forms::built_in_strings()).ask(mode); }

programs::Platform Stage::platform(forms::Windows& shown_by) {
    return {.settings = store,
            .files = files,
            .clock = clock,
            .launcher = launcher,
            .objects = objects,
            .windows = shown_by,
            .machine = machine,
            .folder = folder,
            .scratch_folder = u"C:\\windows\\temp"};
}

void Stage::show_setup(int clicks, std::function<void(forms::Form&)> change) {
    const programs::Platform given = platform(windows);
    programs::frmSiteAssistant wizard(given);
    wizard.form().load();
    if (change) change(wizard.form());
    for (int click = 0; click < clicks; ++click) forms::FormUser(wizard.form()).click(u"cmdNext");
    wizard.form().may_close = {};
    windows.show_modal(wizard.form());
}

void Stage::show_send_to_many(TextView list) {
    const programs::Platform given = platform(windows);
    mass_mailer::frmMassMailer window(given, errors,
                                      u"<html><body><p>Dear {{Name}},<p>see you in {{Town}}.</body></html>");
    window.form().load();
    if (!list.empty()) forms::FormUser(window.form()).set_text(u"txtList", list);
    forms::FormUser(window.form()).set_text(u"txtSubject", u"Spring in {{Town}}");
    window.form().may_close = {};
    windows.show_modal(window.form());
}

} // namespace ornavel::gallery
