#include "forms/frmMessage.h"

#include "forms/captions.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

namespace prompt_modes = diagnostics::prompt_modes;
using namespace text_ids;

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

enum class Choice { agree, yes_or_no };

struct Mode {
    TextView name;
    Wording message;
    Wording title;
    Choice choice = Choice::agree;
    Wording yes{};
    Wording no{};
};

constexpr Mode modes[] = {
    // The table has a text much like this title, and 5015 much like this answer; neither is meant here.
    {prompt_modes::reply, reply_question, u"Ornavel Reply", Choice::yes_or_no, use_a_template,
     u"No. Send 'as is'."},
    {prompt_modes::auto_no_template, no_default_template, u"Ornavel Template warning"},
    {prompt_modes::auto_no_signature, no_default_template,
     template_warning}, // tells of the template as well, deliberately
    {prompt_modes::security_warning, script_question, security_warning, Choice::yes_or_no, send_with_script,
     cancel_script},
    {prompt_modes::bad_template, bad_template, template_failure},
    {prompt_modes::choose_template, no_template_chosen, template_choice},
    {prompt_modes::choose_signature, no_signature_chosen, signature_choice},
    {prompt_modes::format_warning, format_warning, format_warning_title},
    {prompt_modes::support_email_request, support_question, support_title, Choice::yes_or_no,
     u"Yes. Notify Brevant support.", u"No. Continue."},
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
         .tag = to_text(ok),
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
    form_.topmost = true; // the message may be open in another program, Word
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
