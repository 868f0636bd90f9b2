#include "programs/options_assistant/design.h"

#include "forms/measures.h"

namespace ornavel::programs::options_design {
namespace {

using namespace forms;

constexpr int groups_width = 2400, browse_width = 1125;
constexpr int meaning_height = 4 * label_height, least_list = 1800;
constexpr int grip_margin = 270; ///< below the buttons, so that the size grip covers none
constexpr int labels_top = window_margin + box_height + control_gap;
constexpr int list_top = labels_top + label_height + label_gap;
/// Meaning, default, editor and the buttons of the window, from above.
constexpr int below_lists = window_margin + meaning_height + control_gap + label_height + control_gap +
                            box_height + window_margin + button_size.height + grip_margin;

Control control(ControlKind kind, TextView name, TextView caption = {}) {
    return {.kind = kind, .name = Text(name), .caption = Text(caption)};
}

Control button(TextView name, TextView caption) {
    return control(ControlKind::command_button, name, caption);
}

Control in_import(Control inner) {
    inner.frame = u"fraImport";
    return inner;
}

void place(Form& form, TextView name, Bounds bounds) { form[name].place = bounds; }

void arrange_lists(Form& form, int width, int bottom) {
    constexpr int label_drop = (box_height - label_height) / 2, search_label = 750;
    constexpr int search_left = window_margin + search_label + label_gap;
    place(form, u"lblSearch", {window_margin, window_margin + label_drop, search_label, label_height});
    place(form, u"txtSearch", {search_left, window_margin, width - search_left - window_margin, box_height});
    constexpr int left = window_margin + groups_width + control_gap;
    const int settings_width = width - left - window_margin;
    place(form, u"lblGroups", {window_margin, labels_top, groups_width, label_height});
    place(form, u"lblSettings", {left, labels_top, settings_width, label_height});
    place(form, u"lstGroups", {window_margin, list_top, groups_width, bottom - list_top});
    place(form, u"lstSettings", {left, list_top, settings_width, bottom - list_top});
}

void arrange_editor(Form& form, int width, int top) {
    const int whole = width - 2 * window_margin;
    place(form, u"lblMeaning", {window_margin, top, whole, meaning_height});
    top += meaning_height + control_gap;
    place(form, u"lblDefault", {window_margin, top, whole, label_height});
    top += label_height + control_gap;
    constexpr int label_width = 675, label_drop = (box_height - label_height) / 2;
    place(form, u"lblValue", {window_margin, top + label_drop, label_width, label_height});
    const int left = window_margin + label_width + label_gap;
    const int reset = width - window_margin - button_size.width, browse = reset - control_gap - browse_width;
    const bool browses = form[u"cmdBrowseValue"].visible;
    const int room = (browses ? browse : reset) - control_gap - left;
    for (const TextView editor : {u"txtValue", u"cboValue"})
        place(form, editor, {left, top, room, box_height});
    place(form, u"chkValue", {left, top + (box_height - check_height) / 2, room, check_height});
    place(form, u"cmdBrowseValue", {browse, top - 15, browse_width, button_size.height});
    place(form, u"cmdReset", {reset, top - 15, button_size.width, button_size.height});
}

void arrange_buttons(Form& form, int width, int top) {
    int left = window_margin;
    for (const TextView name : {u"cmdImport", u"cmdExport", u"cmdPreset"}) {
        place(form, name, {left, top, button_size.width, button_size.height});
        left += button_size.width + control_gap;
    }
    place(form, u"chkOnlyDifferent",
          {left, top + (button_size.height - check_height) / 2, 3000, check_height});
    const int close = width - window_margin - button_size.width;
    place(form, u"cmdSave",
          {close - control_gap - button_size.width, top, button_size.width, button_size.height});
    place(form, u"cmdClose", {close, top, button_size.width, button_size.height});
}

/// The list of an import covers the lists and the editor.
void arrange_import(Form& form, int width, int height) {
    const int inner = width - 2 * window_margin, bottom = height - window_margin - grip_margin;
    place(form, u"fraImport", {window_margin, window_margin, inner, bottom});
    constexpr int label = window_margin + control_gap, list = label + label_height + label_gap;
    const int buttons = bottom - window_margin - button_size.height;
    place(form, u"lblImport", {window_margin, label, inner - 2 * window_margin, label_height});
    place(form, u"lstImport", {window_margin, list, inner - 2 * window_margin, buttons - control_gap - list});
    const int cancel = inner - window_margin - button_size.width;
    place(form, u"cmdTakeOver",
          {cancel - control_gap - button_size.width, buttons, button_size.width, button_size.height});
    place(form, u"cmdCancelImport", {cancel, buttons, button_size.width, button_size.height});
}

} // namespace

std::vector<Control> controls() {
    Control save = button(u"cmdSave", u"&Save"), close = button(u"cmdClose", u"Close");
    Control take_over = button(u"cmdTakeOver", u"I&mport"), cancel = button(u"cmdCancelImport", u"Cancel");
    save.is_default = take_over.is_default = close.is_cancel = cancel.is_cancel = true;
    Control frame = control(ControlKind::frame, u"fraImport", u"Import");
    frame.visible = false;
    Control value_list = control(ControlKind::combo_box, u"cboValue");
    return {
        control(ControlKind::label, u"lblSearch", u"Se&arch"),
        control(ControlKind::text_box, u"txtSearch"),
        control(ControlKind::label, u"lblGroups", u"&Groups"),
        control(ControlKind::list_box, u"lstGroups"),
        control(ControlKind::label, u"lblSettings", u"Se&ttings"),
        control(ControlKind::list_box, u"lstSettings"),
        control(ControlKind::label, u"lblMeaning"),
        control(ControlKind::label, u"lblDefault"),
        control(ControlKind::label, u"lblValue", u"&Value"),
        control(ControlKind::text_box, u"txtValue"),
        control(ControlKind::check_box, u"chkValue", u"O&n"),
        std::move(value_list),
        button(u"cmdBrowseValue", u"&Browse\u2026"),
        button(u"cmdReset", u"&Reset"),
        button(u"cmdImport", u"&Import\u2026"),
        button(u"cmdExport", u"&Export\u2026"),
        button(u"cmdPreset", u"&Preset\u2026"),
        control(ControlKind::check_box, u"chkOnlyDifferent", u"Export only what &differs"),
        std::move(save),
        std::move(close),
        std::move(frame),
        in_import(control(ControlKind::label, u"lblImport", u"&What the file would change")),
        in_import(control(ControlKind::list_box, u"lstImport")),
        in_import(std::move(take_over)),
        in_import(std::move(cancel)),
    };
}

Size least_room() {
    constexpr int buttons = 2 * window_margin + 5 * button_size.width + 3000 + 5 * control_gap;
    return {buttons, list_top + least_list + below_lists};
}

void arrange(Form& form) {
    const auto [width, height] = form.room();
    const int lists_bottom = height - below_lists;
    arrange_lists(form, width, lists_bottom);
    arrange_editor(form, width, lists_bottom + window_margin);
    arrange_buttons(form, width, height - grip_margin - button_size.height);
    arrange_import(form, width, height);
}

} // namespace ornavel::programs::options_design
