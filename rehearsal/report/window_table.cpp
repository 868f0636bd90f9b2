#include "rehearsal/report/html.h"
#include "rehearsal/report/page.h"
#include "rehearsal/report/words.h"

namespace ornavel::rehearsal::report {
namespace {

/// What stands in a control, and the class that draws it so.
struct Drawn {
    std::string css_class, words;
};

std::string entries(const Json& list) {
    std::string words;
    for (const auto& item : list.value("items", Json::array()))
        words += (words.empty() ? "" : ", ") + item.get<std::string>();
    return words;
}

Drawn drawn(const Json& control) {
    const std::string kind = text_of(control, "kind"), caption = text_of(control, "caption");
    if (kind == "CommandButton") return {"button", caption};
    if (kind == "CheckBox") return {"", (control.value("ticked", false) ? "\u2611 " : "\u2610 ") + caption};
    if (kind == "TextBox") return {"box", text_of(control, "text")};
    if (kind == "ComboBox") return {"box", text_of(control, "text") + " \u25be"};
    return {"", caption};
}

std::string row(const std::string& name, const Json& control) {
    const Drawn look = drawn(control);
    const std::string words = text_element("span", look.css_class, look.words);
    return element("tr", control.value("enabled", true) ? "" : "off",
                   text_element("td", "what", name) + element("td", "", words) +
                       text_element("td", "value", entries(control)));
}

} // namespace

std::string window_table(const Json& form) {
    std::string rows;
    const Json controls = form.value("controls", Json::object());
    for (const auto& [name, control] : controls.items())
        if (control.value("visible", false) && text_of(control, "kind") != "Form") rows += row(name, control);
    if (rows.empty()) return {};
    const std::string headings =
        element("tr", "",
                text_element("th", "what", "Control") + text_element("th", "", "Shows") +
                    text_element("th", "value", "Offers"));
    return fold_out("How it looked", element("table", "journal drawn", headings + rows));
}

} // namespace ornavel::rehearsal::report
