#include "programs/mass_mailer/frmMassMailer.h"

#include "programs/mass_mailer/frmMassMailer_design.h"

namespace ornavel::mass_mailer {

using namespace forms;

namespace {

/// As a label shows it: a "&" marks no access key.
Text as_caption(TextView text) { return replace_all(Text(text), u"&", u"&&"); }

/// What has no room in the label is read in its tool tip.
void show_words(Control& label, const Text& words) {
    label.caption = as_caption(words);
    label.tool_tip = words;
}

Text counted(TextView words, std::size_t count) {
    return Text(words) + u": " + to_text(static_cast<long long>(count));
}

} // namespace

frmMassMailer::frmMassMailer(const programs::Platform& platform, ErrorSink& errors, Text page)
    : platform_(platform), errors_(errors), page_(std::move(page)),
      form_({.name = u"frmMassMailer", .caption = Text(window_title)}, design::controls()) {
    form_.sizable = true;
    form_.least_room = design::least_room;
    form_.on_resize = [this] { design::arrange(form_); };
    form_.on_load = [this] { Form_Load(); };
    form_.on_unload = [this] { Form_Unload(); };
    wire();
}

void frmMassMailer::wire() {
    const auto on_click = [this](TextView control, void (frmMassMailer::*handler)()) {
        form_.on(control, Event::click, [this, handler] { (this->*handler)(); });
    };
    on_click(u"cmdOpenList", &frmMassMailer::cmdOpenList_Click);
    on_click(u"cmdStart", &frmMassMailer::cmdStart_Click);
    on_click(u"cmdPause", &frmMassMailer::cmdPause_Click);
    on_click(u"cmdStop", &frmMassMailer::cmdStop_Click);
    on_click(u"cmdTest", &frmMassMailer::cmdTest_Click);
    on_click(u"cboAddressColumn", &frmMassMailer::take_column);
    form_.on(u"cmdClose", Event::click, [this] { form_.unload(); });
    form_.on(u"cmdPrevious", Event::click, [this] { turn_to(-1); });
    form_.on(u"cmdFollowing", Event::click, [this] { turn_to(1); });
    form_.on(u"lstPeople", Event::click, [this] { turn_to(0); });
    form_.on(u"txtList", Event::change, [this] { take_list(); });
    form_.on(u"txtSubject", Event::change, [this] {
        take_drafts();
        show_person(shown_);
    });
}

void frmMassMailer::Form_Load() {
    form_[u"txtSubject"].text = read(platform_.settings, settings::admin::SendToManySubject);
    form_[u"txtPace"].text = u"30";
    form_.make_room(design::first_room);
    design::arrange(form_);
    take_list();
}

/// What a user sees of other people's messages stays nowhere.
void frmMassMailer::Form_Unload() {
    cmdStop_Click();
    attempt([this] {
        if (platform_.files.file_exists(preview_path())) platform_.files.remove(preview_path());
    });
}

void frmMassMailer::cmdOpenList_Click() {
    const auto path = platform_.windows.ask_for_path(
        {.title = u"Open a list", .files = u"Tables of people", .pattern = u"*.csv;*.txt"});
    if (!path) return;
    form_[u"txtList"].text = *path;
    take_list();
}

/// What breaks off for want of memory leaves nobody to send to, never people with another list's cells.
void frmMassMailer::forget_people() {
    people_ = {};
    shown_ = 0;
}

void frmMassMailer::take_list() {
    forget_people();
    table_ = {};
    problem_.clear();
    try {
        read_list();
    } catch (const FileError& error) {
        problem_ = u"Line " + to_text(static_cast<long long>(error.at().line)) + u": " + error.description();
    } catch (const Failure& failure) {
        problem_ = failure.description();
    }
    Control& columns = form_[u"cboAddressColumn"];
    columns.items = table_.columns;
    columns.select(table_.columns.empty() ? -1 : static_cast<int>(likely_address_column(table_)));
    take_column();
}

void frmMassMailer::read_list() {
    const Text given = trim(form_[u"txtList"].text);
    list_path_ = platform_.files.file_exists(given) ? given : Text();
    list_ = form_[u"txtList"].text;
    if (given.empty()) return;
    if (list_path_.empty()) {
        table_ = read_pasted(list_);
    } else {
        const std::string bytes = platform_.files.read(list_path_);
        list_ = decode(bytes, platform_.files.ansi());
        table_ = read_table(bytes, platform_.files.ansi());
    }
}

void frmMassMailer::take_column() {
    const int column = form_[u"cboAddressColumn"].index;
    forget_people();
    unsent_.clear();
    is_tested_ = false;
    take_drafts();
    if (column >= 0) people_ = people_of(table_, static_cast<std::size_t>(column));
    list_people();
    list_rejected();
    show_person(0);
    take_phase(Phase::choosing);
}

void frmMassMailer::take_drafts() {
    subject_draft_ = Draft(form_[u"txtSubject"].text, Draft::Kind::line, table_.columns);
    page_draft_ = Draft(page_, Draft::Kind::html, table_.columns);
}

void frmMassMailer::list_people(const Journal* journal) {
    Control& list = form_[u"lstPeople"];
    list.items.clear();
    for (const Person& person : people_.people) {
        const auto state = journal ? journal->state_of(person.address) : Journal::State::open;
        TextView mark;
        if (state == Journal::State::sent) mark = u" (sent)";
        if (state == Journal::State::unknown) mark = u" (nobody knows whether it was sent)";
        list.items.push_back(person.address + Text(mark));
    }
    form_[u"lblPeople"].caption = counted(u"P&eople", people_.people.size());
}

void frmMassMailer::list_rejected() {
    Control& list = form_[u"lstRejected"];
    list.items = unsent_;
    if (!problem_.empty()) list.items.push_back(problem_);
    for (const Rejected& row : people_.rejected)
        list.items.push_back(u"Line " + to_text(static_cast<long long>(row.line)) + u": " + row.reason +
                             (row.address.empty() ? Text() : u": " + row.address));
    form_[u"lblRejected"].caption = counted(u"&Not sent to", list.items.size());
}

void frmMassMailer::turn_to(int step) {
    const int wanted = form_[u"lstPeople"].index + step;
    if (wanted >= 0) show_person(static_cast<std::size_t>(wanted));
}

Letter frmMassMailer::letter_to(const Person& person) const {
    const auto& cells = table_.rows[person.row].cells;
    return {person.address, subject_draft_.filled(cells), page_draft_.filled(cells)};
}

/// Where there is no such person, the page shows its fields.
void frmMassMailer::show_person(std::size_t person) {
    const std::size_t count = people_.people.size();
    shown_ = std::min(person, count == 0 ? 0 : count - 1);
    form_[u"lstPeople"].select(count == 0 ? -1 : static_cast<int>(shown_));
    form_[u"cmdPrevious"].enabled = shown_ > 0;
    form_[u"cmdFollowing"].enabled = shown_ + 1 < count;
    attempt([&] {
        Letter letter{{}, form_[u"txtSubject"].text, page_};
        if (count != 0) letter = letter_to(people_.people[shown_]);
        show_words(form_[u"lblPreview"], letter.address.empty() ? u"Preview" : letter.address);
        show_words(form_[u"lblPreviewSubject"], u"Subject: " + letter.subject);
        platform_.files.write(preview_path(), encode_html(letter.page));
        form_[u"brwPreview"].visit(preview_path());
    });
}

} // namespace ornavel::mass_mailer
