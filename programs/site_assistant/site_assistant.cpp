#include "programs/site_assistant/site_assistant.h"

namespace ornavel::programs {
namespace {

int show_wizard(const Platform& platform) {
    forms::Form form({.name = u"frmSiteAssistant", .caption = Text(site_assistant.title)},
                     {{.kind = forms::ControlKind::command_button,
                       .name = u"cmdCancel",
                       .place = {165, 165, 1125, 345},
                       .caption = u"Cancel",
                       .is_cancel = true}});
    form.make_room({4500, 675});
    form.on(u"cmdCancel", forms::Event::click, [&] { form.unload(); });
    platform.windows.show_modal(form);
    return ended;
}

} // namespace

const Program site_assistant{u"SiteAssistant.exe", u"Ornavel Setup", show_wizard};

} // namespace ornavel::programs
