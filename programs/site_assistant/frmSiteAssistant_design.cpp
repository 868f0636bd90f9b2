#include "programs/site_assistant/frmSiteAssistant_design.h"

#include "forms/measures.h"

namespace ornavel::programs::setup_design {
namespace {

using namespace forms;

constexpr Page all_pages[] = {
    {u"fraYou", u"txtSigFullname"}, {u"fraFrench", u"txtSigFullnameFR"}, {u"fraLetterhead", u"cboTemplates"},
    {u"fraSending", u"cboMode"},    {u"fraReady", u"cmdFinish"},
};

// The frame of a page, and the columns and rows in it.
constexpr int left = window_margin, whole = room.width - 2 * window_margin, frame_height = 4650;
constexpr int inner = 165, inner_width = whole - 2 * inner, inner_right = inner + inner_width;
constexpr int column_width = (inner_width - window_margin) / 2, second = inner + column_width + window_margin;
constexpr int label_width = 1350, label_drop = 60;
constexpr int first_row = 330, row_step = box_height + control_gap;
constexpr int browse_width = 1125;

// What stands below the frame.
constexpr int problem_top = window_margin + frame_height + control_gap, problem_height = 3 * label_height;
constexpr int button_top = problem_top + problem_height + control_gap;
static_assert(button_top + button_size.height + window_margin == room.height);

constexpr int row_top(int row) { return first_row + row * row_step; }

Control designed(ControlKind kind, TextView name, Bounds place, TextView frame, TextView caption = {}) {
    return {.kind = kind,
            .name = Text(name),
            .place = place,
            .caption = Text(caption),
            .frame = Text(frame),
            .visible = false};
}

/// The controls of one page.
class Sheet {
public:
    Sheet(std::vector<Control>& all, TextView frame, TextView caption) : all_(all), frame_(frame) {
        add(designed(ControlKind::frame, frame, {left, window_margin, whole, frame_height}, {}, caption));
    }

    void add(Control control) { all_.push_back(std::move(control)); }

    void label(TextView of, TextView caption, int column, int row) {
        add(designed(ControlKind::label, u"lbl" + Text(of.substr(3)),
                     {column, row_top(row) + label_drop, label_width, label_height}, frame_, caption));
    }

    /// A label, and a box that ends where its column does, or so much before that.
    Control& labelled(ControlKind kind, TextView name, TextView caption, int column, int row, int width,
                      int before_end = 0) {
        label(name, caption, column, row);
        const int box_left = column + label_width + label_gap;
        add(designed(kind, name, {box_left, row_top(row), column + width - box_left - before_end, box_height},
                     frame_));
        return all_.back();
    }

    void text_box(TextView name, TextView caption, int column, int row) {
        labelled(ControlKind::text_box, name, caption, column, row, column_width);
    }

    /// A path, with a button that lets the user look for it.
    void path_box(TextView name, TextView caption, TextView button, TextView button_caption, int row) {
        labelled(ControlKind::text_box, name, caption, inner, row, inner_width, browse_width + control_gap);
        add(designed(ControlKind::command_button, button,
                     {inner_right - browse_width, row_top(row) - 15, browse_width, button_size.height},
                     frame_, button_caption));
    }

    void check_box(TextView name, TextView caption, int row) {
        add(designed(ControlKind::check_box, name, {inner, row_top(row) + 30, inner_width, check_height},
                     frame_, caption));
    }

private:
    std::vector<Control>& all_;
    TextView frame_;
};

void add_you(std::vector<Control>& all) {
    Sheet page(all, u"fraYou", u"About you");
    page.text_box(u"txtSigFullname", u"Na&me", inner, 0);
    page.text_box(u"txtSigPosition", u"&Position", inner, 1);
    page.text_box(u"txtSigOrganizationName", u"&Organisation", inner, 2);
    page.text_box(u"txtSigEmail", u"&E-mail", inner, 3);
    page.text_box(u"txtSigWebsite", u"&Website", inner, 4);
    page.text_box(u"txtSigTelephone", u"&Telephone", second, 0);
    page.text_box(u"txtSigFax", u"Fa&x", second, 1);
    page.text_box(u"txtSigCell", u"&Cell phone", second, 2);
    page.text_box(u"txtSigAddress", u"&Address", second, 3);
    page.text_box(u"txtSigAddress2", u"A&ddress line 2", second, 4);
    page.text_box(u"txtSigAddress3", u"Address &line 3", second, 5);
    page.text_box(u"txtSigAddress4", u"Address l&ine 4", second, 6);
    page.check_box(u"chkFrench", u"I have texts in F&rench, too", 7);
}

void add_french(std::vector<Control>& all) {
    Sheet page(all, u"fraFrench", u"In French");
    page.text_box(u"txtSigFullnameFR", u"Na&me", inner, 0);
    page.text_box(u"txtSigPositionFR", u"&Position", inner, 1);
    page.text_box(u"txtSigOrganizationNameFR", u"&Organisation", inner, 2);
    page.text_box(u"txtSigWebsiteFR", u"&Website", inner, 3);
    page.text_box(u"txtSigAddressFR", u"&Address", second, 0);
    page.text_box(u"txtSigAddress2FR", u"A&ddress line 2", second, 1);
    page.text_box(u"txtSigAddress3FR", u"Address &line 3", second, 2);
    page.text_box(u"txtSigAddress4FR", u"Address l&ine 4", second, 3);
}

void add_letterhead(std::vector<Control>& all) {
    Sheet page(all, u"fraLetterhead", u"Letterhead");
    page.path_box(u"txtTemplatesFolder", u"&Templates in", u"cmdBrowseTemplates", u"B&rowse…", 0);
    page.path_box(u"txtSignaturesFolder", u"&Signatures in", u"cmdBrowseSignatures", u"Br&owse…", 1);
    page.labelled(ControlKind::combo_box, u"cboTemplates", u"Te&mplate", inner, 2, column_width);
    page.labelled(ControlKind::combo_box, u"cboSignatures", u"Si&gnature", second, 2, column_width);
    constexpr int top = row_top(3) + 30;
    page.add(designed(ControlKind::web_browser, u"brwPreview",
                      {inner, top, inner_width, frame_height - top - inner}, u"fraLetterhead"));
}

void add_sending(std::vector<Control>& all) {
    Sheet page(all, u"fraSending", u"Sending");
    page.labelled(ControlKind::combo_box, u"cboMode", u"&Mode", inner, 0, column_width + 1000).fixed_entries =
        true;
    page.check_box(u"chkAutoPreview", u"Show a &preview before a message is sent", 1);
    page.check_box(u"chkReplyAsIs", u"Send &replies as they are, without a letterhead", 2);
    page.path_box(u"txtvCard", u"&vCard file", u"cmdBrowsevCard", u"Br&owse…", 3);
    page.check_box(u"chkSendvCard", u"Offer to send the v&Card with a message", 4);
    page.check_box(u"chkInsertDate", u"Put the &date into messages", 5);
    page.check_box(u"chkSendQuote", u"Put the &quote of the day into messages", 6);
}

void add_ready(std::vector<Control>& all) {
    Sheet page(all, u"fraReady", u"Ready");
    page.add(designed(ControlKind::label, u"lblChanges", {inner, first_row, inner_width, label_height},
                      u"fraReady"));
    constexpr int top = first_row + label_height + label_gap;
    page.add(designed(ControlKind::list_box, u"lstChanges",
                      {inner, top, inner_width, frame_height - top - inner}, u"fraReady"));
}

Control button(TextView name, TextView caption, int from_right) {
    const int right = left + whole - from_right * (button_size.width + control_gap);
    return {.kind = ControlKind::command_button,
            .name = Text(name),
            .place = {right - button_size.width, button_top, button_size.width, button_size.height},
            .caption = Text(caption)};
}

void add_buttons(std::vector<Control>& all) {
    all.push_back({.kind = ControlKind::label,
                   .name = u"lblProblem",
                   .place = {left, problem_top, whole, problem_height}});
    all.push_back(button(u"cmdBack", u"< &Back", 2));
    all.push_back(button(u"cmdNext", u"&Next >", 1));
    all.back().is_default = true;
    all.push_back(button(u"cmdFinish", u"&Finish", 1));
    all.back().is_default = true;
    all.push_back(button(u"cmdCancel", u"Cancel", 0));
    all.back().is_cancel = true;
}

} // namespace

std::span<const Page> pages() { return all_pages; }

std::vector<Control> controls() {
    std::vector<Control> all;
    add_you(all);
    add_french(all);
    add_letterhead(all);
    add_sending(all);
    add_ready(all);
    add_buttons(all);
    return all;
}

} // namespace ornavel::programs::setup_design
