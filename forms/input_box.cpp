#include "forms/input_box.h"

#include "forms/measures.h"

namespace ornavel::forms {
namespace {

constexpr int width = 5400;
constexpr int answer_top = window_margin + label_height + label_gap;
constexpr int button_top = answer_top + box_height + window_margin;
constexpr int right = window_margin + width;
constexpr Size room{right + window_margin, button_top + button_size.height + window_margin};

Control button(TextView name, TextView caption, int left) {
    return {.kind = ControlKind::command_button,
            .name = Text(name),
            .place = {left, button_top, button_size.width, button_size.height},
            .caption = Text(caption)};
}

std::vector<Control> designed_controls(TextView prompt, TextView prefilled) {
    Control ok = button(input_box_ok, u"OK", right - 2 * button_size.width - control_gap);
    Control cancel = button(u"cmdCancel", u"Cancel", right - button_size.width);
    ok.is_default = cancel.is_cancel = true;
    return {
        {.kind = ControlKind::label,
         .name = Text(input_box_prompt),
         .place = {window_margin, window_margin, width, label_height},
         .caption = prompt.empty() ? Text() : with_access_key(prompt, prompt.front())},
        {.kind = ControlKind::text_box,
         .name = Text(input_box_answer),
         .place = {window_margin, answer_top, width, box_height},
         .text = Text(prefilled)},
        std::move(ok),
        std::move(cancel),
    };
}

} // namespace

std::optional<Text> ask_for_text(Windows& windows, TextView title, TextView prompt, TextView prefilled) {
    std::optional<Text> answer;
    Form form({.name = Text(input_box_name), .caption = Text(title)}, designed_controls(prompt, prefilled));
    form.make_room(room);
    form.topmost =
        true; // no window of the mail client may be active when the user chose from the tray's menu
    form.on(input_box_ok, Event::click, [&] {
        answer = form[input_box_answer].text;
        form.unload();
    });
    form.on(u"cmdCancel", Event::click, [&] { form.unload(); });
    windows.show_modal(form);
    return answer;
}

} // namespace ornavel::forms
