#include "forms/BrevantUser_design.h"

#include "forms/measures.h"
#include "forms/string_table.h"

namespace ornavel::forms::send_options_design {
namespace {

using namespace text_ids;

constexpr TextView choices = u"frmChoices", options = u"frmOutlookOptions";

// The columns of the form, and within its frames.
constexpr int left = window_margin, whole = 7275, right = left + whole;
constexpr int inner = 165, half = 3405, second = inner + half + control_gap + 30;
constexpr int inner_right = whole - inner;

// Its rows, and those within its frames.
constexpr int tips_height = 480;
constexpr int choices_top = window_margin + tips_height + control_gap;
constexpr int label_row = 180, list_row = label_row + label_height + 45,
              vcard_row = list_row + box_height + control_gap;
constexpr int choices_height = vcard_row + box_height + 150;
constexpr int button_top = choices_top + choices_height + control_gap;
constexpr int options_top = button_top + button_size.height + window_margin;
constexpr int first_option = 285, option_step = box_height + control_gap;
constexpr int options_height = first_option + 5 * option_step + check_height + 150;
constexpr int logo_top = options_top + options_height + control_gap, logo_height = 1050;
constexpr int vcard_room = box_height + control_gap;

constexpr int option_row(int row) { return first_option + row * option_step; }

Control designed(ControlKind kind, TextView name, Bounds place, int caption = 0, int tip = 0,
                 TextView frame = {}) {
    Control control{.kind = kind, .name = Text(name), .place = place};
    if (caption != 0) control.tag = to_text(caption);
    if (tip != 0) control.tool_tip = to_text(tip);
    control.frame = frame;
    return control;
}

Control button(TextView name, int column, int caption, int tip) {
    return designed(ControlKind::command_button, name,
                    {left + column * (button_size.width + control_gap), button_top, button_size.width,
                     button_size.height},
                    caption, tip);
}

Control frame(TextView name, int top, int height, int caption = 0) {
    return designed(ControlKind::frame, name, {left, top, whole, height}, caption);
}

Control label(TextView name, Bounds place, int caption, TextView in) {
    return designed(ControlKind::label, name, place, caption, 0, in);
}

Control list(TextView name, Bounds place, int tip, TextView in) {
    return designed(ControlKind::combo_box, name, place, 0, tip, in);
}

Control check_box(TextView name, Bounds place, int caption, int tip, TextView in) {
    return designed(ControlKind::check_box, name, place, caption, tip, in);
}

Control text_box(TextView name, Bounds place, int tip, TextView in) {
    return designed(ControlKind::text_box, name, place, 0, tip, in);
}

Control hidden(Control control) {
    control.visible = false;
    return control;
}

void add_choices(std::vector<Control>& all) {
    all.push_back(frame(choices, choices_top, choices_height));
    all.push_back(label(u"lblTemplates", {inner, label_row, half, label_height}, choose_template, choices));
    all.push_back(list(u"cboTemplates", {inner, list_row, half, box_height}, choose_template_tip, choices));
    all.push_back(label(u"lblSignature", {second, label_row, half, label_height}, choose_signature, choices));
    all.push_back(list(u"cboSignature", {second, list_row, half, box_height}, choose_signature_tip, choices));
    all.push_back(
        check_box(u"chkvCard", {inner, vcard_row + 30, half, check_height}, attach_vcard, 0, choices));
    all.push_back(
        hidden(list(u"cbovCard", {second, vcard_row, half, box_height}, attach_vcard_tip, choices)));
    all.push_back(hidden(list(u"cbovCardPath", {second, vcard_row, half, box_height}, 0, choices)));
}

void add_buttons(std::vector<Control>& all) {
    all.push_back(button(u"cmdOkToSend", 0, send, send_tip));
    all.back().is_default = true;
    all.push_back(button(u"cmdSendAsIs", 1, send_as_is, send_as_is_tip));
    all.push_back(button(u"cmdPreview", 2, preview, preview_tip));
    all.push_back(button(u"cmdOptions", 3, fold_options, fold_options_tip));
    all.push_back(button(u"cmdHelp", 4, help, help_tip));
    all.push_back(button(u"cmdCancel", 5, cancel, cancel_tip));
    all.back().is_cancel = true;
}

void add_levels(std::vector<Control>& all) {
    constexpr int word = 1050, row = option_row(0), label_drop = 60;
    all.push_back(
        label(u"lblImportance", {inner, row + label_drop, word, label_height}, importance, options));
    all.push_back(
        list(u"cboImportance", {inner + word, row, half - word, box_height}, importance_tip, options));
    all.push_back(
        label(u"lblSensitivity", {second, row + label_drop, word, label_height}, sensitivity, options));
    all.push_back(
        list(u"cboSensitivity", {second + word, row, half - word, box_height}, sensitivity_tip, options));
}

/// A box and the text that counts while it is ticked.
void add_pair(std::vector<Control>& all, int row, Control box, Control text) {
    constexpr int box_width = 2100;
    box.place = {inner, option_row(row) + 30, box_width, check_height};
    text.place = {inner + box_width + label_gap, option_row(row), inner_right - inner - box_width - label_gap,
                  box_height};
    all.push_back(std::move(box));
    all.push_back(std::move(text));
}

void add_options(std::vector<Control>& all) {
    all.push_back(frame(options, options_top, options_height, outlook_options));
    add_levels(all);
    const auto beside = [](int column, int row) {
        return Bounds{column, option_row(row), half, check_height};
    };
    all.push_back(
        check_box(u"chkRequestDeliveryReceipt", beside(inner, 1), delivery_receipt, delivery_tip, options));
    all.push_back(check_box(u"chkRequestReadReceipt", beside(second, 1), read_receipt, read_tip, options));
    add_pair(all, 2, check_box(u"chkUpdateCategories", {}, update_categories, categories_tip, options),
             text_box(u"txtCategories", {}, category_names_tip, options));
    add_pair(all, 3, check_box(u"chkFollowUp", {}, follow_up, follow_up_tip, options),
             text_box(u"txtFollowUpFlag", {}, follow_up_note_tip, options));
    all.push_back(check_box(u"chkDefault", {inner, option_row(4), inner_right - inner, check_height},
                            save_default, default_tip, options));
    all.push_back(check_box(u"chkShowMessage", beside(inner, 5), show_tips, show_tips_tip, options));
    // Only shows what the administrator decided.
    all.push_back(check_box(u"chkInternal", beside(second, 5), internal_as_is, internal_tip, options));
    all.back().enabled = false;
}

} // namespace

/// The tips come last, so that the keyboard is first where the user has to choose.
std::vector<Control> controls() {
    std::vector<Control> all;
    add_choices(all);
    add_buttons(all);
    add_options(all);
    all.push_back(hidden(designed(ControlKind::image, u"imgLogo", {left, logo_top, whole, logo_height})));
    all.push_back(text_box(u"txtHeader", {left, window_margin, right - left, tips_height}, tips_tip, {}));
    all.back().locked = all.back().several_lines = true;
    return all;
}

void close_ranks_without_vcard(Form& form) {
    form[choices].place.height -= vcard_room;
    for (Control& control : form.controls())
        if (control.frame.empty() && control.place.top > form[choices].place.top)
            control.place.top -= vcard_room;
}

} // namespace ornavel::forms::send_options_design
