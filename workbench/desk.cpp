#include "workbench/desk.h"

#include "base/scratch_disk.h"
#include "compose/insertions.h"
#include "connect/environment.h"
#include "connect/gates.h"
#include "workbench/drives.h"

namespace ornavel::workbench {
namespace {

using namespace settings;

/// A machine with nothing on it but settings and files. Nothing can be started or created, and nobody sits in
/// front of it: questions get the order's answer, everything else is noted.
class BareMachine final : public forms::Windows,
                          public Launcher,
                          public host::Objects,
                          public SystemInformation {
public:
    BareMachine(Dressed& dressed, bool accept_script) : dressed_(dressed), accept_script_(accept_script) {}

    Answer show(TextView title, TextView text, Buttons buttons) override {
        dressed_.notes.push_back(u"a box: " + Text(title) + u": " + one_line(text));
        if (buttons == Buttons::ok) return Answer::ok;
        if (!contains(text, u"script")) return Answer::no;
        dressed_.asked_about_script = true;
        return accept_script_ ? Answer::yes : Answer::no;
    }
    void show_modal(forms::Form&) override { throw Failure(u"There is no window here"); }
    std::optional<Text> ask_for_path(const forms::PathQuestion&) override { return {}; }
    void launch(TextView program, TextView, WindowState) override {
        throw Failure(Text(program) + u" is not started here");
    }
    Progress run_windows_program(TextView name, TextView, WindowState, int) override {
        throw Failure(Text(name) + u" is not started here");
    }
    host::ObjectPtr create(TextView prog_id) override {
        throw host::Error(u"ActiveX component can't create object", Text(prog_id));
    }
    host::ObjectPtr get(TextView moniker) override { return create(moniker); }
    OperatingSystem operating_system() const override { return {2, 5, 1, 2600}; }
    int processor_type() const override { return 586; }
    Memory memory() const override { return {}; }
    Text computer_name() const override { return {}; }
    Text user_name() const override { return {}; }
    Text registered_owner() const override { return {}; }
    Text registered_organization() const override { return {}; }

private:
    static Text one_line(TextView text) {
        return replace_all(replace_all(Text(text), u" \r\n", u" "), line_end, u" ");
    }

    Dressed& dressed_;
    bool accept_script_;
};

Text with_boilerplate(const Order& order, const Files& files, ErrorSink& errors, Text source) {
    if (!order.boilerplate) return source;
    MemoryStore folder;
    save(folder, admin::HTMFilesPath, folder_of(*order.boilerplate));
    return compose::boilerplate_text(folder, files, name_of_file(*order.boilerplate), errors) + source;
}

/// The letter with the boilerplate in front: of its HTML where it has any.
host::Letter letter_of(const Order& order, const Files& files, ErrorSink& errors) {
    host::Letter letter = order.letter;
    Text& source = letter.html_body.empty() ? letter.body : letter.html_body;
    source = with_boilerplate(order, files, errors, std::move(source));
    return letter;
}

void read_start_up(connect::Session& session) {
    connect::read_working_folders(session);
    session.start_up.usage_log = compose::Get_Marketing_Info(session.platform.settings);
    session.start_up.usage_log.connection_string.clear(); // nothing is logged from here
}

void compose_for(connect::Send& send, bool plain_text, Dressed& dressed) {
    connect::next_quote(send);
    connect::load_reply_marker(send);
    dressed.left_as_is = connect::reply_test(send) == connect::Verdict::leave;
    dressed.is_reply = send.reply.found || dressed.left_as_is;
    if (dressed.left_as_is) {
        dressed.html = send.item().html_body();
        return;
    }
    auto [outcome, html] = connect::composed_body(send, plain_text, {}, compose::Purpose::send);
    dressed.outcome = outcome;
    dressed.html = std::move(html);
}

} // namespace

struct Desk::Parts {
    Parts(const MemoryStore& settings, const Files& files, const Clock& clock, bool accept_script)
        : machine(dressed, accept_script), store(settings), disk(files),
          session(connect::Platform{.settings = store,
                                    .files = disk,
                                    .clock = clock,
                                    .launcher = machine,
                                    .objects = machine,
                                    .windows = machine,
                                    .strings = forms::built_in_strings(),
                                    .machine = machine,
                                    .addin_folder = u"C:\\Program Files\\Brevant\\Ornavel\\Programs"}) {
        read_start_up(session);
    }

    Dressed dressed;
    BareMachine machine;
    MemoryStore store;
    ScratchDisk disk;
    connect::Session session;
};

Desk::Desk(const MemoryStore& settings, const Files& files, const Clock& clock, bool accept_script)
    : parts_(std::make_unique<Parts>(settings, files, clock, accept_script)) {}
Desk::~Desk() = default;

const compose::Services& Desk::services() const { return parts_->session.composing; }

Dressed Desk::dress(const Order& order) {
    connect::Session& session = parts_->session;
    if (order.watched)
        session.composing.on_change = [this](const compose::StepChange& change) {
            parts_->dressed.changes.push_back(
                {Text(change.step), Text(change.text), change.before, change.after});
        };
    const host::Letter letter = letter_of(order, parts_->disk, session.quiet_errors);
    session.host.oHostApp = host::paper_application(letter);
    connect::choose_whether_breaks_are_converted(session);
    session.host.MyMessItem = host::paper_item(letter);
    bool cancel = false;
    connect::Send send{.session = session, .sent = session.host.MyMessItem, .cancel = cancel};
    Dressed& dressed = parts_->dressed;
    compose_for(send, letter.editor == host::plain_text_editor, dressed);
    for (const Text& line : parts_->disk.appended_lines()) dressed.notes.push_back(u"the error log: " + line);
    return std::move(dressed);
}

Dressed dress(const MemoryStore& settings, const Files& files, const Clock& clock, const Order& order) {
    return Desk(settings, files, clock, order.accept_script).dress(order);
}

} // namespace ornavel::workbench
