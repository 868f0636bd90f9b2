#include "forms/frmMessage.h"

#include "forms/captions.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

constexpr TextView lblMessage = u"lblMessage";
constexpr TextView cmdYes = u"cmdYes";
constexpr TextView cmdNo = u"cmdNo";
constexpr TextView cmdOK = u"cmdOK";

/// A numbered text of the table, or words that are fixed here.
struct Wording {
    constexpr Wording() = default;
    constexpr Wording(int number) : id(number) {}
    constexpr Wording(const char16_t* words) : fixed(words) {}
    int id = 0;
    TextView fixed{};
};

enum class Choice { ok, yes_or_no };

struct Mode {
    TextView name;
    Wording message;
    Wording title;
    Choice choice = Choice::ok;
    Wording yes{};
    Wording no{};
};

constexpr Mode modes[] = {
    // The table has a text much like this title, and 5015 much like this answer; neither is meant here.
    {u"Reply", 5016, u"Ornavel Reply", Choice::yes_or_no, 5013, u"No. Send 'as is'."},
    {u"Auto-no Template", 5018, u"Ornavel Template warning"},
    {u"Auto-no signature", 5018, 5019}, // tells of the template as well, deliberately
    {u"Security warning", 5020, 5023, Choice::yes_or_no, 5021, 5022},
    {u"Bad Template", 5024, 5025},
    {u"Choose Template", 5026, 5027},
    {u"Choose signature", 5028, 5029},
    {u"Format Warning", 5030, 5031},
    {u"Support email request", 5032, 5033, Choice::yes_or_no, u"Yes. Notify Brevant support.",
     u"No. Continue."},
};

std::vector<Control> designed_controls() {
    return {
        {.kind = Kind::label, .name = Text(lblMessage), .place = {240, 240, 5520, 810}},
        {.kind = Kind::command_button,
         .name = Text(cmdYes),
         .place = {735, 1200, 2475, 375},
         .visible = false,
         .is_default = true},
        {.kind = Kind::command_button,
         .name = Text(cmdNo),
         .place = {3330, 1200, 2475, 375},
         .visible = false,
         .is_cancel = true},
        {.kind = Kind::command_button,
         .name = Text(cmdOK),
         .place = {4590, 1200, 1215, 375},
         .tag = u"5014",
         .is_default = true,
         .is_cancel = true},
    };
}

void word(Text& target, const Wording& wording, const StringTable& table) {
    if (wording.id == 0)
        target = wording.fixed;
    else if (auto text = table.find(wording.id))
        target = std::move(*text);
}

void apply(const Mode& mode, Form& form, const StringTable& table) {
    const bool asks = mode.choice == Choice::yes_or_no;
    word(form[lblMessage].caption, mode.message, table);
    word(form.properties.caption, mode.title, table);
    word(form[cmdYes].caption, mode.yes, table);
    word(form[cmdNo].caption, mode.no, table);
    form[cmdOK].visible = !asks;
    form[cmdYes].visible = asks;
    form[cmdNo].visible = asks;
}

} // namespace

frmMessage::frmMessage(PromptValues& shared, const StringTable& table)
    : shared_(shared), table_(table),
      form_({.name = u"frmMessage", .place = {0, 0, 6135, 2265}, .caption = u"Ornavel"},
            designed_controls()) {
    form_.on_load = [this] { Form_Load(); };
    form_.on(cmdYes, Event::click, [this] { cmdYes_Click(); });
    form_.on(cmdNo, Event::click, [this] { cmdNo_Click(); });
    form_.on(cmdOK, Event::click, [this] { cmdOK_Click(); });
}

void frmMessage::Form_Load() {
    load_captions(form_, table_);
    const auto mode = std::ranges::find(modes, TextView(shared_.mode), &Mode::name);
    if (mode != std::end(modes)) apply(*mode, form_, table_);
}

void frmMessage::cmdYes_Click() {
    shared_.answer = u"Yes";
    form_.unload();
}

void frmMessage::cmdNo_Click() {
    shared_.answer = u"No";
    form_.unload();
}

void frmMessage::cmdOK_Click() { form_.unload(); }

bool PromptDialog::ask(TextView mode) {
    values_ = {.mode = Text(mode), .answer = u"No"};
    frmMessage prompt(values_, table_);
    windows_.show_modal(prompt.form());
    return values_.answer == u"Yes";
}

} // namespace ornavel::forms
