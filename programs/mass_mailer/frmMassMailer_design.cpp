#include "programs/mass_mailer/frmMassMailer_design.h"

#include "forms/measures.h"

namespace ornavel::mass_mailer::design {
namespace {

using namespace forms;

constexpr int left = window_margin, column_width = 5100, column_end = left + column_width;
constexpr int page_left = column_end + window_margin;
constexpr int subject_height = 2 * label_height; ///< a long subject goes on in another line
constexpr int list_height = 1200, progress_height = 255, bottom_margin = 255;

Control designed(ControlKind kind, TextView name, TextView caption = {}) {
    return {.kind = kind, .name = Text(name), .caption = Text(caption)};
}

Control button(TextView name, TextView caption) {
    return designed(ControlKind::command_button, name, caption);
}
Control label(TextView name, TextView caption) { return designed(ControlKind::label, name, caption); }
Control text_box(TextView name) { return designed(ControlKind::text_box, name); }

/// Gives the controls of a column their places, from top to bottom.
class Column {
public:
    Column(Form& form, int top) : form_(form), top_(top) {}
    void add_label(TextView name) {
        form_[name].place = {left, top_, column_width, label_height};
        top_ += label_height + label_gap;
    }
    void add(TextView name, int height) {
        form_[name].place = {left, top_, column_width, height};
        top_ += height + control_gap;
    }
    int top() const { return top_; }

private:
    Form& form_;
    int top_;
};

void arrange_list_row(Form& form, int top) {
    constexpr int label_width = 1350, label_left = left + button_size.width + control_gap,
                  box_left = label_left + label_width + label_gap;
    form[u"cmdOpenList"].place = {left, top, button_size.width, button_size.height};
    form[u"lblAddressColumn"].place = {label_left, top + 75, label_width, label_height};
    form[u"cboAddressColumn"].place = {box_left, top + 15, column_end - box_left, box_height};
}

void arrange_column(Form& form, int bottom) {
    constexpr int label_room = label_height + label_gap;
    Column column(form, window_margin);
    column.add_label(u"lblSubject");
    column.add(u"txtSubject", box_height);
    column.add_label(u"lblList");
    column.add(u"txtList", list_height);
    arrange_list_row(form, column.top());
    Column lists(form, column.top() + button_size.height + control_gap);
    const int room = bottom - lists.top() - 2 * label_room - control_gap, people = room * 3 / 5;
    lists.add_label(u"lblPeople");
    lists.add(u"lstPeople", people);
    lists.add_label(u"lblRejected");
    lists.add(u"lstRejected", room - people);
}

void arrange_page(Form& form, int right, int bottom) {
    constexpr int subject = window_margin + label_height, top = subject + subject_height + label_gap;
    const int buttons = bottom - button_size.height;
    form[u"lblPreview"].place = {page_left, window_margin, right - page_left, label_height};
    form[u"lblPreviewSubject"].place = {page_left, subject, right - page_left, subject_height};
    form[u"brwPreview"].place = {page_left, top, right - page_left, buttons - control_gap - top};
    form[u"cmdPrevious"].place = {page_left, buttons, button_size.width, button_size.height};
    form[u"cmdFollowing"].place = {page_left + button_size.width + control_gap, buttons, button_size.width,
                                   button_size.height};
}

void arrange_bottom(Form& form, int right, int top) {
    constexpr int words = 1950, number = 600, test = 1245;
    int at = left;
    form[u"lblPace"].place = {at, top + 75, words, label_height};
    form[u"txtPace"].place = {at += words + label_gap, top + 15, number, box_height};
    form[u"cmdTest"].place = {at + number + control_gap, top, test, button_size.height};
    at = right - button_size.width;
    for (const TextView name : {u"cmdClose", u"cmdStop", u"cmdPause", u"cmdStart"}) {
        form[name].place = {at, top, button_size.width, button_size.height};
        at -= button_size.width + control_gap;
    }
}

} // namespace

std::vector<Control> controls() {
    Control list = text_box(u"txtList");
    list.several_lines = true;
    Control columns = designed(ControlKind::combo_box, u"cboAddressColumn");
    columns.fixed_entries = true;
    Control start = button(u"cmdStart", u"St&art…");
    start.is_default = true;
    Control close = button(u"cmdClose", u"Close");
    close.is_cancel = true;
    return {
        label(u"lblSubject", u"&Subject"),
        text_box(u"txtSubject"),
        label(u"lblList", u"&List: addresses, or the path of a table"),
        std::move(list),
        button(u"cmdOpenList", u"&Browse…"),
        label(u"lblAddressColumn", u"Address &column"),
        std::move(columns),
        label(u"lblPeople", u"P&eople"),
        designed(ControlKind::list_box, u"lstPeople"),
        label(u"lblRejected", u"&Not sent to"),
        designed(ControlKind::list_box, u"lstRejected"),
        label(u"lblPreview", u"Preview"),
        label(u"lblPreviewSubject", {}),
        designed(ControlKind::web_browser, u"brwPreview"),
        button(u"cmdPrevious", u"&Previous"),
        button(u"cmdFollowing", u"&Following"),
        designed(ControlKind::progress_bar, u"prgSent"),
        label(u"lblProgress", u""),
        label(u"lblPace", u"&Messages a minute"),
        text_box(u"txtPace"),
        button(u"cmdTest", u"Send a &test"),
        std::move(start),
        button(u"cmdPause", pause_caption),
        button(u"cmdStop", u"St&op"),
        std::move(close),
    };
}

void arrange(Form& form) {
    const Size room = form.room();
    const int right = room.width - window_margin;
    const int buttons = room.height - bottom_margin - button_size.height;
    const int progress = buttons - control_gap - progress_height;
    arrange_column(form, progress - window_margin);
    arrange_page(form, right, progress - window_margin);
    form[u"prgSent"].place = {left, progress, column_width, progress_height};
    form[u"lblProgress"].place = {page_left, progress + 30, right - page_left, label_height};
    arrange_bottom(form, right, buttons);
}

} // namespace ornavel::mass_mailer::design
