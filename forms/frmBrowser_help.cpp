// The preview window as the viewer of the help page.
#include "forms/frmBrowser.h"

#include "forms/unloading.h"

namespace ornavel::forms {
namespace {

using namespace settings;

/// Keeps the saved place of the preview window as it is, however the scope is left.
class SavedPlace {
public:
    explicit SavedPlace(Store& store) : store_(store) {
        for (std::size_t i = 0; i < std::size(keys); ++i)
            values_[i] = store.find(keys[i]->section, keys[i]->name).value_or(Text(keys[i]->default_value));
    }
    ~SavedPlace() {
        for (std::size_t i = 0; i < std::size(keys); ++i) save(store_, *keys[i], values_[i]);
    }
    SavedPlace(const SavedPlace&) = delete;
    SavedPlace& operator=(const SavedPlace&) = delete;

private:
    static constexpr const NumberKey* keys[] = {&user::BrowserTop, &user::BrowserLeft, &user::BrowserHeight,
                                                &user::BrowserWidth};
    Store& store_;
    Text values_[std::size(keys)];
};

} // namespace

void frmBrowser::become_help_viewer() {
    for (Control& control : form_.controls())
        control.visible = control.name == u"cmdClose" || control.name == u"brwWebBrowser";
    form_.properties.caption = u"Ornavel Help";
    Control& page = form_[u"brwWebBrowser"];
    page.follows_links = true;
    page.visit(page_);
    arrange();
}

void show_help(const frmBrowser::Needs& needs) {
    const SavedPlace unchanged(needs.settings);
    PreviewAnswers answers;
    frmBrowser viewer(needs, answers, read(needs.settings, admin::Help), {});
    viewer.form().load();
    viewer.take_saved_place();
    viewer.become_help_viewer();
    needs.windows.show_modal(viewer.form());
}

} // namespace ornavel::forms
