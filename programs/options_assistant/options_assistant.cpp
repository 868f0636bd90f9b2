#include "programs/options_assistant/options_assistant.h"

#include "programs/options_assistant/frmOptionsAssistant.h"

namespace ornavel::programs {
namespace {

int show_options(const Platform& platform) {
    frmOptionsAssistant options(platform);
    platform.windows.show_modal(options.form());
    return ended;
}

} // namespace

const Program options_assistant{u"OptionsAssistant.exe", u"Ornavel Options", show_options};

} // namespace ornavel::programs
