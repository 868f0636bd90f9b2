#include "programs/site_assistant/site_assistant.h"

#include "programs/site_assistant/frmSiteAssistant.h"

namespace ornavel::programs {
namespace {

int show_wizard(const Platform& platform) {
    frmSiteAssistant wizard(platform);
    platform.windows.show_modal(wizard.form());
    return ended;
}

} // namespace

const Program site_assistant{u"SiteAssistant.exe", u"Ornavel Setup", show_wizard};

} // namespace ornavel::programs
