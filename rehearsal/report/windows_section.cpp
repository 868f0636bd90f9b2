#include "rehearsal/report/page.h"

#include "base/encoding.h"
#include "rehearsal/report/html.h"
#include "rehearsal/report/png.h"
#include "rehearsal/report/words.h"

namespace ornavel::rehearsal::report {
namespace {

/// What a form says: its visible labels.
std::string labels_of(const Json& form) {
    std::string words;
    for (const auto& control : form.value("controls", Json::object()))
        if (text_of(control, "kind") == "Label" && control.value("visible", false))
            words += text_of(control, "caption") + '\n';
    return words;
}

/// A control as the user knows it: by its caption, where it has one.
std::string name_of_control(const Json& form, const Text& control) {
    const Json controls = form.value("controls", Json::object());
    const std::string name = to_utf8(control),
                      caption = text_of(controls.value(name, Json::object()), "caption");
    return caption.empty() ? name : quoted(caption);
}

std::string words_of(const Json& form, const Step& step) {
    const std::string control = name_of_control(form, step.control);
    switch (step.kind) {
    case Step::Kind::click:
        return "clicked " + control;
    case Step::Kind::double_click:
        return "double-clicked " + control;
    case Step::Kind::set:
        return "entered " + quoted(to_utf8(step.text)) + " in " + control;
    case Step::Kind::select:
        return "chose entry " + std::to_string(step.first + 1) + " of " + control;
    case Step::Kind::tick:
        return (step.ticked ? "ticked " : "unticked ") + control;
    case Step::Kind::resize:
        return "made it " + std::to_string(step.first) + " by " + std::to_string(step.second) + " twips";
    case Step::Kind::move:
        return "moved it to " + std::to_string(step.first) + ", " + std::to_string(step.second) + " twips";
    default:
        return "closed it";
    }
}

std::string steps_in(const Json& shown, const std::vector<Step>& steps) {
    std::string words;
    for (const Step& step : steps) words += (words.empty() ? "" : ", ") + words_of(shown, step);
    return words;
}

/// What the user did with a window; `entry` is theirs for it.
std::string answer_to(const Json& shown, const UserEntry* entry) {
    const std::string answer = text_of(shown, "answer");
    if (shown.value("unexpected", false))
        return "nobody answered" + (answer.empty() ? "" : "; it counts as " + answer);
    if (!answer.empty()) return "answered " + answer;
    if (!entry || entry->has_answer) return "cancelled";
    return entry->steps.empty() ? "closed" : steps_in(shown, entry->steps);
}

bool has_page(const Json& form) {
    for (const auto& control : form.value("controls", Json::object()))
        if (text_of(control, "kind") == "WebBrowser") return true;
    return false;
}

std::string look_of(const Json& shown, const std::string* bmp) {
    if (!bmp) return window_table(shown);
    const std::string picture = "<img alt=\"" + escape(title_of_window(shown)) +
                                "\" src=\"data:image/png;base64," + encode_base64(png_of_bmp(*bmp)) + "\">\n";
    const std::string note =
        has_page(shown) ? "Wine shows no page in it; the mail client's machine does." : "";
    return element("div", "look", picture + (note.empty() ? note : text_element("p", "", note)));
}

std::string window(const Json& shown, const UserEntry* entry, const std::string* bmp) {
    const std::string words = text_of(shown, "text") + text_of(shown, "prompt") + labels_of(shown);
    return element("li", shown.value("unexpected", false) ? "bad" : "",
                   text_element("strong", "", title_of_window(shown)) + text_element("span", "", words) +
                       text_element("em", "", answer_to(shown, entry)) + look_of(shown, bmp));
}

} // namespace

std::string windows_section(const Story& story) {
    std::string windows;
    auto entry = story.scenario.user.begin();
    std::size_t number = 0;
    for (const auto& shown : story.outcome.value("windows", Json::array())) {
        const bool expected = !shown.value("unexpected", false) && entry != story.scenario.user.end();
        const auto picture = story.pictures.find(number++);
        windows += window(shown, expected ? &*entry++ : nullptr,
                          picture == story.pictures.end() ? nullptr : &picture->second);
    }
    return windows.empty() ? windows : element("ul", "windows", windows);
}

} // namespace ornavel::rehearsal::report
