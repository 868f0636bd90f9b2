#include "workbench/command.h"
#include "workbench/desk.h"
#include "workbench/settings_file.h"

#include <cstdio>

namespace ornavel::workbench {
namespace {

using namespace settings;

constexpr const char* compose_example =
    "The template takes the place of the one in the settings, and its folder that of \"HTM Files Path\"; so "
    "does the\n"
    "signature (or \"none\"). A message that ends in .htm or .html is HTML, any other is text: with --editor "
    "rich, the\n"
    "default, it is poured into the template, with plain it becomes a plain-text message, which takes no "
    "template.\n"
    "Lengths of --explain are in UTF-16 units.\n\n"
    "Example:\n"
    "  ornavel compose --settings samples/marlow-hale.reg --template samples/stationery/letterhead.htm \\\n"
    "          --signature samples/stationery/partner.htm --message reply.htm --reply -o out.html";

struct ComposeOptions {
    std::string settings, template_path, signature, message, body, boilerplate, out;
    std::string editor, host = "11", clock, subject;
    std::vector<std::string> to;
    bool reply = false, explain = false, json = false;
};

class GivenClock final : public Clock {
public:
    explicit GivenClock(LocalTime time) : time_(time) {}
    LocalTime now() const override { return time_; }

private:
    LocalTime time_;
};

LocalTime time_of(const std::string& text) {
    LocalTime time;
    char end = 0;
    const int read = std::sscanf(text.c_str(), "%4d-%2d-%2d%*1[ T]%2d:%2d:%2d%c", &time.year, &time.month,
                                 &time.day, &time.hour, &time.minute, &time.second, &end);
    const bool fits = time.month >= 1 && time.month <= 12 && time.day >= 1 && time.day <= 31 &&
                      time.hour < 24 && time.minute < 60 && time.second < 60;
    if ((read != 5 && read != 6) || !fits) throw Failure(u"--clock takes a time such as 2003-11-20T14:05:09");
    return time;
}

void require_file(const Files& files, const Text& path) {
    if (!files.file_exists(path)) throw Failure(path + u": there is no such file");
}

bool is_html_name(const std::string& path) {
    const Text name = lower_case(from_utf8(path));
    return name.ends_with(u".htm") || name.ends_with(u".html");
}

MemoryStore store_for(const ComposeOptions& options, const Files& files) {
    MemoryStore store;
    if (!options.settings.empty()) store = load_settings(files, from_utf8(options.settings)).store;
    const auto choose = [&](const std::string& given, const Key& folder, const Key& name) {
        const Text path = from_utf8(given);
        if (path.empty()) return;
        if (path == u"none") return void(save(store, name, path));
        require_file(files, path);
        save(store, folder, folder_of(path));
        save(store, name, name_of_file(path));
    };
    choose(options.template_path, admin::HTMFilesPath, user::Template);
    choose(options.signature, admin::SignaturesPath, user::Signature);
    return store;
}

int editor_of(const ComposeOptions& options) {
    const bool html = options.message.empty() || is_html_name(options.message);
    if (options.editor == "plain") return host::plain_text_editor;
    if (options.editor == "word") return host::word_editor;
    if (options.editor == "html") return host::html_editor;
    return html && options.editor.empty() ? host::html_editor : host::rich_text_editor;
}

Order order_of(const ComposeOptions& options, const Files& files) {
    if (options.editor == "word" && !options.message.empty() && !is_html_name(options.message))
        throw Failure(u"--editor word takes an HTML message");
    Order order;
    order.watched = options.explain || options.json;
    host::Letter& letter = order.letter;
    letter.editor = editor_of(options);
    letter.subject = from_utf8(options.subject);
    for (const std::string& address : options.to) letter.recipients.push_back(from_utf8(address));
    letter.host_version = options.host == "9"    ? u"9.0.0.3821"
                          : options.host == "10" ? u"10.0.2627"
                                                 : u"11.0.6353";
    if (options.message.empty())
        letter.html_body = u"<html><body><p>This is where your text stands.</p></body></html>";
    else
        (is_html_name(options.message) ? letter.html_body : letter.body) =
            read_text(files, from_utf8(options.message));
    if (!options.body.empty()) letter.body = read_text(files, from_utf8(options.body));
    if (!options.boilerplate.empty()) {
        require_file(files, from_utf8(options.boilerplate));
        order.boilerplate = from_utf8(options.boilerplate);
    }
    return order;
}

Json as_json(const Dressed& dressed) {
    Json notes = Json::array(), changes = Json::array();
    for (const Text& note : dressed.notes) notes.push_back(to_utf8(note));
    for (const auto& [step, text, before, after] : dressed.changes)
        changes.push_back(
            {{"step", to_utf8(step)}, {"text", to_utf8(text)}, {"before", before}, {"after", after}});
    return {{"composed", dressed.outcome == compose::Outcome::composed && !dressed.left_as_is},
            {"reply", dressed.is_reply},
            {"notes", notes},
            {"changes", changes}};
}

void explain(std::ostream& stream, const Dressed& dressed) {
    for (const auto& [step, text, before, after] : dressed.changes)
        stream << step << ": " << text << " " << before << " -> " << after << '\n';
}

/// What stands in the way of an output; empty where nothing does.
TextView obstacle(const ComposeOptions& options, const Dressed& dressed) {
    if (options.reply && !dressed.is_reply)
        return u"the message does not hold the reply marker, so Ornavel takes it for a new message";
    if (dressed.outcome == compose::Outcome::failed) return u"the message could not be composed";
    if (dressed.outcome == compose::Outcome::refused) return u"the template was refused";
    return {};
}

Exit compose(const ComposeOptions& options, Context& context) {
    const MemoryStore store = store_for(options, context.files);
    const Order order = order_of(options, context.files);
    const GivenClock given(options.clock.empty() ? context.clock.now() : time_of(options.clock));
    if (order.letter.editor == host::plain_text_editor && !options.template_path.empty())
        context.err << "ornavel: plain text takes no template\n";

    const Dressed dressed = dress(store, context.files, given, order);
    if (options.json) context.out << as_json(dressed).dump(2) << '\n';
    if (options.explain && !options.json) explain(options.out.empty() ? context.err : context.out, dressed);
    for (const Text& note : dressed.notes) context.err << "ornavel: " << note << '\n';
    if (dressed.left_as_is)
        context.err << "ornavel: \"Reply as is\" is on: the reply goes as it was written\n";
    if (const TextView why = obstacle(options, dressed); !why.empty()) {
        context.err << "ornavel: " << why << '\n';
        return found_something;
    }
    if (!options.json || !options.out.empty()) deliver(context, options.out, encode_html(dressed.html));
    return dressed.notes.empty() ? fine : found_something;
}

} // namespace

void add_compose(CLI::App& program, Task& task) {
    const auto options = std::make_shared<ComposeOptions>();
    CLI::App* command =
        program.add_subcommand("compose", "Composes a message as Ornavel does, byte for byte");
    command->add_option("--settings", options->settings, "The settings, a registry file")->type_name("S.reg");
    command->add_option("--template", options->template_path, "The letterhead")->type_name("T.htm");
    command->add_option("--signature", options->signature, "The signature, or none")->type_name("S.htm");
    command->add_option("--message", options->message, "What the user wrote")->type_name("M.htm|M.txt");
    command->add_option("--body", options->body, "An HTML message as plain text, as the mail client keeps it")
        ->type_name("B.txt");
    command->add_option("--boilerplate", options->boilerplate, "A text to put in front")->type_name("F.txt");
    command->add_option("--subject", options->subject, "The subject")->type_name("TEXT");
    command->add_option("--to", options->to, "A recipient's address; repeatable")->type_name("ADDRESS");
    command->add_option("--editor", options->editor, "What the message is written in")
        ->check(CLI::IsMember({"plain", "rich", "html", "word"}));
    command->add_option("--host", options->host, "The mail client's version")
        ->check(CLI::IsMember({"9", "10", "11"}));
    command->add_option("--clock", options->clock, "The time at which it is sent")
        ->type_name("2003-11-20T14:05:09");
    command->add_flag("--reply", options->reply, "Fails when the message is no reply");
    command->add_flag("--explain", options->explain,
                      "Lists the steps that changed something, and by how much");
    command->add_flag("--json", options->json, "Prints what happened as JSON");
    command->add_option("-o", options->out, "The file for the result; without it the standard output")
        ->type_name("OUT.html");
    command->footer(compose_example);
    command->callback(
        [options, &task] { task = [options](Context& context) { return compose(*options, context); }; });
}

} // namespace ornavel::workbench
