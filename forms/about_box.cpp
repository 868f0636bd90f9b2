#include "forms/about_box.h"

#include "diagnostics/about.h"

namespace ornavel::forms {

void show_about(MessageBoxes& boxes) {
    boxes.inform(u"About Ornavel", u"Ornavel" + Text(line_end) + u"Version: " + u"" ORNAVEL_VERSION);
}

} // namespace ornavel::forms
