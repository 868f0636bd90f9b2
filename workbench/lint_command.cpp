#include "base/encoding.h"
#include "workbench/command.h"
#include "workbench/lint/linter.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

constexpr const char* lint_example =
    "A folder stands for the .htm, .html and .txt files in it, and a .reg file for settings. What a file is "
    "follows\n"
    "from the settings' folders, else from --as; without either a file with the marker is a template and any "
    "other a\n"
    "signature. <!-- ornavel-lint: allow RULE --> in a file silences a rule there.\n\n"
    "Examples:\n"
    "  ornavel lint samples/stationery --settings samples/marlow-hale.reg --drive C=drive-c\n"
    "  ornavel lint --rules";

constexpr std::size_t largest_page = 16'000'000;

struct LintOptions {
    std::vector<std::string> paths;
    std::string settings, as;
    bool rules = false, json = false;
};

Json as_json(const Finding& finding) {
    return {{"file", to_utf8(finding.file)},         {"line", finding.at.line},
            {"column", finding.at.column},           {"rule", finding.rule},
            {"severity", name_of(finding.severity)}, {"message", to_utf8(finding.message)},
            {"mend", to_utf8(finding.mend)}};
}

std::string in_one_line(std::string_view bytes) {
    std::string line;
    for (const char byte : bytes)
        line += byte == '\n'               ? std::string("  ")
                : byte < ' ' || byte > '~' ? std::string("?")
                                           : std::string(1, byte);
    return line;
}

void print_example(std::ostream& stream, const char* what, const Example& shown) {
    stream << "    " << what << in_one_line(shown.page);
    if (!shown.settings.empty())
        stream << (shown.page.empty() ? "" : "   with ") << in_one_line(shown.settings);
    stream << '\n';
}

Exit list_rules(const LintOptions& options, std::ostream& stream) {
    if (options.json) {
        Json list = Json::array();
        for (const Rule& rule : rules())
            list.push_back({{"rule", rule.name},
                            {"severity", name_of(rule.severity)},
                            {"finds", to_utf8(rule.finds)},
                            {"bad", in_one_line(rule.bad.page) + in_one_line(rule.bad.settings)},
                            {"good", in_one_line(rule.good.page) + in_one_line(rule.good.settings)}});
        stream << list.dump(2) << '\n';
        return fine;
    }
    for (const Rule& rule : rules()) {
        stream << rule.name << " (" << name_of(rule.severity) << "): finds " << rule.finds << '\n';
        print_example(stream, "bad:  ", rule.bad);
        print_example(stream, "good: ", rule.good);
    }
    return fine;
}

bool has_ending(TextView name, std::initializer_list<TextView> endings) {
    const Text lower = lower_case(name);
    return std::ranges::any_of(endings, [&](TextView ending) { return lower.ends_with(ending); });
}

/// The files that the paths stand for.
std::vector<Text> files_of(const std::vector<std::string>& paths, const Files& files) {
    std::vector<Text> all;
    for (const std::string& given : paths) {
        const Text path = from_utf8(given);
        if (!files.folder_exists(path)) {
            all.push_back(path);
            continue;
        }
        for (const Text& name : files.list(path))
            if (has_ending(name, {u".htm", u".html", u".txt"})) all.push_back(path + u"/" + name);
    }
    return all;
}

std::optional<Role> told_role(const LintOptions& options) {
    if (options.as == "template") return Role::letterhead;
    if (options.as == "signature") return Role::signature;
    if (options.as == "boilerplate") return Role::boilerplate;
    return {};
}

class Lint {
public:
    Lint(const LintOptions& options, Context& context) : options_(options), context_(context) {
        for (Text& path : files_of(options.paths, context.files))
            if (has_ending(path, {u".reg"}))
                settings_ = path;
            else
                pages_.push_back(std::move(path));
        if (!options.settings.empty()) settings_ = from_utf8(options.settings);
        if (!settings_.empty()) file_ = load_settings(context.files, settings_);
        if (settings_.empty() && pages_.empty())
            throw Failure(u"There is nothing to check: name files or folders");
    }

    Exit run() {
        const Ground ground{file_ ? &*file_ : nullptr, file_ ? file_->store : defaults_, context_.files,
                            context_.clock};
        if (file_) {
            for (const auto& [description, place] : file_->complaints)
                note(at(settings_, place, description));
            take(lint_settings(ground));
        }
        for (const Text& path : pages_) check(ground, path);
        if (options_.json) context_.out << list_.dump(2) << '\n';
        if (!options_.json) print_count();
        return unreadable_ ? unusable : bad_ > 0 ? found_something : fine;
    }

private:
    void note(TextView text) { context_.err << "ornavel: " << text << '\n'; }

    /// What can't be read is told, and the others are checked all the same.
    void check(const Ground& ground, const Text& path) {
        try {
            const std::string bytes = context_.files.read(path);
            if (bytes.size() > largest_page)
                throw Failure(path + u": larger than 16 MB; no message can carry it");
            if (is_binary(bytes)) throw Failure(path + u": this is no text");
            const auto [role, guessed] =
                role_of(ground, path, decode(bytes, context_.files.ansi()), told_role(options_));
            constexpr TextView names[] = {u"letterhead", u"signature", u"boilerplate"};
            if (guessed && !options_.json)
                note(path + u": taken for a " + Text(names[static_cast<std::size_t>(role)]) +
                     u"; --as says otherwise");
            take(lint_file(ground, path, bytes, role));
        } catch (const Failure& failure) {
            note(failure.description());
            unreadable_ = true;
        }
    }

    void take(const std::vector<Finding>& findings) {
        for (const Finding& finding : findings) {
            ++(finding.severity == Severity::hint ? hints_ : bad_);
            if (options_.json)
                list_.push_back(as_json(finding));
            else
                context_.out << finding.file << ':' << finding.at.line << ':' << finding.at.column << ": "
                             << name_of(finding.severity) << ": " << finding.message << " [" << finding.rule
                             << "]\n    " << finding.mend << '\n';
        }
    }

    void print_count() {
        context_.out << pages_.size() + (file_ ? 1 : 0) << " files, " << bad_ << " errors and warnings, "
                     << hints_ << " hints\n";
    }

    const LintOptions& options_;
    Context& context_;
    Text settings_;
    std::vector<Text> pages_;
    std::optional<SettingsFile> file_;
    settings::MemoryStore defaults_;
    Json list_ = Json::array();
    std::size_t bad_ = 0, hints_ = 0;
    bool unreadable_ = false;
};

} // namespace

void add_lint(CLI::App& program, Task& task) {
    const auto options = std::make_shared<LintOptions>();
    CLI::App* command =
        program.add_subcommand("lint", "Checks templates, signatures, boilerplates and settings");
    command->add_option("paths", options->paths, "Files and folders")->type_name("PATH");
    command->add_option("--settings", options->settings, "The settings that go with them")
        ->type_name("S.reg");
    command->add_option("--as", options->as, "What the files are")
        ->check(CLI::IsMember({"template", "signature", "boilerplate"}));
    command->add_flag("--rules", options->rules, "Lists the rules, each with an example");
    command->add_flag("--json", options->json, "Prints an array of JSON");
    command->footer(lint_example);
    command->callback([options, &task] {
        task = [options](Context& context) {
            return options->rules ? list_rules(*options, context.out) : Lint(*options, context).run();
        };
    });
}

} // namespace ornavel::workbench
