#include "forms/frmMessage.h"

#include "forms/captions.h"
#include "forms/measures.h"

#include <algorithm>

namespace ornavel::forms {
namespace {

namespace prompt_modes = diagnostics::prompt_modes;
using namespace text_ids;

constexpr TextView imgIcon = u"imgIcon";
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

/// A risky question has the harmless answer as its default.
enum class Choice { agree, yes_or_no, risky_yes_or_no };

struct Mode {
    TextView name;
    Icon icon;
    Wording message;
    Wording title;
    Choice choice = Choice::agree;
    Wording yes{};
    Wording no{};
};

constexpr Mode modes[] = {
    // The table has a text much like this title, and 5015 much like this answer; neither is meant here.
    {prompt_modes::reply, Icon::question, reply_question, u"Ornavel Reply", Choice::yes_or_no, use_a_template,
     u"No. Send 'as is'."},
    {prompt_modes::auto_no_template, Icon::warning, no_default_template, u"Ornavel Template warning"},
    {prompt_modes::auto_no_signature, Icon::warning, no_default_template,
     template_warning}, // speaks of the template as well: users know this window by these words
    {prompt_modes::security_warning, Icon::warning, script_question, security_warning,
     Choice::risky_yes_or_no, send_with_script, cancel_script},
    {prompt_modes::bad_template, Icon::warning, bad_template, template_failure},
    {prompt_modes::choose_template, Icon::information, no_template_chosen, template_choice},
    {prompt_modes::choose_signature, Icon::information, no_signature_chosen, signature_choice},
    {prompt_modes::format_warning, Icon::warning, format_warning, format_warning_title},
    {prompt_modes::support_email_request, Icon::question, support_question, support_title,
     Choice::risky_yes_or_no, u"Yes. Notify Brevant support.", u"No. Continue."},
};

// The icon, the message beside it, and the buttons below, which end where the message ends.
constexpr int icon_size = 480;
constexpr int message_left = window_margin + icon_size + window_margin;
constexpr Size message{5070, 780};
constexpr int right = message_left + message.width;
constexpr int button_top = window_margin + message.height + window_margin;
constexpr int answer_width = 2550;
constexpr Size room{right + window_margin, button_top + button_size.height + window_margin};

Control button(TextView name, int left, int width) {
    return {.kind = ControlKind::command_button,
            .name = Text(name),
            .place = {left, button_top, width, button_size.height}};
}

std::vector<Control> designed_controls() {
    Control yes = button(cmdYes, right - control_gap - 2 * answer_width, answer_width);
    Control no = button(cmdNo, right - answer_width, answer_width);
    Control agree = button(cmdOK, right - button_size.width, button_size.width);
    yes.visible = no.visible = false;
    agree.tag = to_text(ok);
    agree.is_default = agree.is_cancel = no.is_cancel = true;
    return {
        {.kind = ControlKind::image,
         .name = Text(imgIcon),
         .place = {window_margin, window_margin, icon_size, icon_size},
         .visible = false},
        {.kind = ControlKind::label,
         .name = Text(lblMessage),
         .place = {message_left, window_margin, message.width, message.height}},
        std::move(yes),
        std::move(no),
        std::move(agree),
    };
}

void word(Text& target, const Wording& wording, const StringTable& table) {
    if (wording.id == 0)
        target = wording.fixed;
    else if (auto text = table.find(wording.id))
        target = std::move(*text);
}

void word_answer(Control& answer, const Wording& wording, char16_t access_key, const StringTable& table) {
    word(answer.caption, wording, table);
    answer.caption = with_access_key(answer.caption, access_key);
}

void apply(const Mode& mode, Form& form, const StringTable& table) {
    const bool asks = mode.choice != Choice::agree;
    form[imgIcon].icon = mode.icon;
    form[imgIcon].visible = true;
    word(form[lblMessage].caption, mode.message, table);
    word(form.properties.caption, mode.title, table);
    word_answer(form[cmdYes], mode.yes, u'Y', table);
    word_answer(form[cmdNo], mode.no, u'N', table);
    form[cmdOK].visible = !asks;
    form[cmdYes].visible = asks;
    form[cmdNo].visible = asks;
    form[cmdYes].is_default = mode.choice == Choice::yes_or_no;
    form[cmdNo].is_default = mode.choice == Choice::risky_yes_or_no;
}

} // namespace

frmMessage::frmMessage(PromptValues& shared, const StringTable& table)
    : shared_(shared), table_(table),
      form_({.name = u"frmMessage", .caption = u"Ornavel"}, designed_controls()) {
    form_.make_room(room);
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
