#include "forms/frmBrowser_design.h"

#include "forms/measures.h"

namespace ornavel::forms::preview_design {
namespace {

constexpr TextView option_names[] = {u"lblTemplates", u"cboTemplates", u"lblSignatures", u"cboSignatures"};

constexpr Group all_groups[] = {
    {u"command1"},
    {u"cmdSendPlain"},
    {u"cmdSendToMany"},
    {u"cmdClose"},
    {u"cmdNext"},
    {u"cmdSignNext"},
    {u"cmdOptions"},
    {u"cmdHelp"},
    {u"chkvCard"},
    {u"chkShowPreview"},
    {u"cboTemplates", u"lblTemplates", true},
    {u"cboSignatures", u"lblSignatures"},
    {u"cboSig", u"lblSig"},
    {u"cboBGColourName", u"lblBGColour"},
    {u"cboBplates", u"lblBplates"},
    {u"txtAttachments", u"lblAttachments"},
    {u"lblPastedImages"},
};

constexpr Colour all_colours[] = {
    {u"None", u"#FFFFFF"},   {u"Ivory", u"#FFFFF0"},    {u"Linen", u"#FAF0E6"},
    {u"Sand", u"#F5F0E1"},   {u"Wheat", u"#F5E9D0"},    {u"Peach", u"#FBE9DD"},
    {u"Rose", u"#F8E6E8"},   {u"Lavender", u"#ECE9F5"}, {u"Ice blue", u"#E8F1F8"},
    {u"Sky", u"#DCE9F5"},    {u"Mint", u"#E6F4EC"},     {u"Pale green", u"#EAF5E1"},
    {u"Sage", u"#E4EBDD"},   {u"Stone", u"#E6E4DF"},    {u"Light grey", u"#F5F5F5"},
    {u"Silver", u"#EEEEEE"},
};

Control designed(ControlKind kind, TextView name, int width, int height, TextView caption = {}) {
    return {.kind = kind, .name = Text(name), .place = {0, 0, width, height}, .caption = Text(caption)};
}

Control button(TextView name, int width, TextView caption, TextView tool_tip = {}) {
    Control control = designed(ControlKind::command_button, name, width, button_size.height, caption);
    control.tool_tip = tool_tip;
    return control;
}

Control label(TextView name, int width, TextView caption) {
    return designed(ControlKind::label, name, width, label_height, caption);
}

Control check_box(TextView name, int width, TextView caption) {
    return designed(ControlKind::check_box, name, width, check_height, caption);
}

Control list(TextView name) { return designed(ControlKind::combo_box, name, 2100, box_height); }

Control hidden(Control control) {
    control.visible = false;
    return control;
}

} // namespace

std::vector<Control> controls() {
    Control send = button(u"command1", button_size.width, u"&Send");
    send.is_default = true;
    Control close = button(u"cmdClose", button_size.width, u"&Close");
    close.is_cancel = true;
    return {
        std::move(send),
        button(u"cmdSendPlain", 1350, u"Send &Plain"),
        button(u"cmdSendToMany", 1500, u"Send to Man&y"),
        std::move(close),
        button(u"cmdNext", 1350, u"> &Template", u"Next template"),
        button(u"cmdSignNext", 1350, u"> S&ignature", u"Next signature"),
        button(u"cmdOptions", 1245, options_folded),
        hidden(button(u"cmdHelp", button_size.width, u"&Help!")),
        check_box(u"chkvCard", 900, u"&vCard"),
        check_box(u"chkShowPreview", 2400, u"&do not show Preview"),
        hidden(label(u"lblTemplates", 780, u"Te&mplate")),
        hidden(list(u"cboTemplates")),
        hidden(list(u"cboListTemplates")),
        hidden(label(u"lblSignatures", 840, u"Si&gnature")),
        hidden(list(u"cboSignatures")),
        hidden(list(u"cboPrevSigs")),
        hidden(label(u"lblSig", 1380, u"Signature P&rofile")),
        hidden(list(u"cboSig")),
        label(u"lblBGColour", 1560, u"&Background colour"),
        list(u"cboBGColourName"),
        hidden(list(u"cboBGColourCode")),
        hidden(label(u"lblBplates", 2850, u"Se&lect boilerplate text from the list")),
        hidden(list(u"cboBplates")),
        hidden(list(u"cboListBplates")),
        hidden(label(u"lblAttachments", 1080, u"Attachments")),
        hidden(designed(ControlKind::text_box, u"txtAttachments", 2400, box_height)),
        label(u"lblPastedImages", 7200,
              u"Note: pasted images will not appear in this preview, but will be seen in the sent version."),
        designed(ControlKind::web_browser, u"brwWebBrowser", 0, 0),
    };
}

std::span<const Group> groups() { return all_groups; }
std::span<const TextView> options() { return option_names; }
std::span<const Colour> colours() { return all_colours; }

} // namespace ornavel::forms::preview_design
