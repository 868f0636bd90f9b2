#include "tests/gallery/options_program.h"

#include "forms/frmPropPage.h"
#include "programs/options_assistant/frmOptionsAssistant.h"

namespace ornavel::gallery {
namespace {

/// Asked for a file, its user always names the same one.
class OneFile final : public forms::Windows {
public:
    OneFile(forms::Windows& windows, Text path) : windows_(windows), path_(std::move(path)) {}
    Answer show(TextView title, TextView text, Buttons buttons) override {
        return windows_.show(title, text, buttons);
    }
    void show_modal(forms::Form& form) override { windows_.show_modal(form); }
    std::optional<Text> ask_for_path(const forms::PathQuestion&) override { return path_; }

private:
    forms::Windows& windows_;
    Text path_;
};

} // namespace

void show_page(Stage& stage) {
    forms::frmPropPage page({stage.store, stage.files, stage.windows, stage.launcher, stage.folder,
                             [](TextView, TextView) {}, [] {}});
    page.form().load();
    stage.windows.show_modal(page.form());
}

void show_options_program(Stage& stage, const std::function<void(forms::Form&)>& act) {
    OneFile windows(stage.windows, stage.folder + u"in.reg");
    const programs::Platform platform = stage.platform(windows);
    programs::frmOptionsAssistant options(platform);
    options.form().load();
    if (act) act(options.form());
    options.form().may_close = {};
    stage.windows.show_modal(options.form());
}

} // namespace ornavel::gallery
