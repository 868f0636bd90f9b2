#include "compose/composition.h"
#include "workbench/lint/sheet.h"

namespace ornavel::workbench {

using compose::insertion_marker;

void check_marker(const Sheet& sheet) {
    if (sheet.role != Role::letterhead) return;
    const Text& text = sheet.page.text;
    const auto first = text.find(insertion_marker);
    if (first == Text::npos)
        return sheet.tell(0, "marker-missing", u"There is no marker, so the user's text is lost",
                          u"Write " + Text(insertion_marker) + u" where the text belongs");
    for (auto at = first; at != Text::npos; at = text.find(insertion_marker, at + 1)) {
        if (const auto where = sheet.page.hides(at))
            sheet.tell(at, "marker-hidden", u"The marker stands in " + Text(*where),
                       u"Put it where text can stand");
        if (at != first)
            sheet.tell(at, "marker-repeated",
                       u"Only the first marker takes the text; this one stays as it is", u"Take it out");
    }
}

} // namespace ornavel::workbench
