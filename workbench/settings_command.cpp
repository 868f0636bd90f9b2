#include "base/encoding.h"
#include "settings/descriptions.h"
#include "workbench/command.h"
#include "workbench/field_reference.h"

#include <sstream>

namespace ornavel::workbench {
namespace {

using settings::Description;
using settings::SettingKind;

constexpr const char* examples = "Examples:\n"
                                 "  ornavel settings --format markdown -o docs/settings.md\n"
                                 "  ornavel settings --fields --format markdown -o docs/fields.md";

constexpr const char* introduction = "# All settings\n\n"
                                     "Made by `tools/ornavel settings --format markdown`; `./check` says "
                                     "when it is out of date. All of them are strings\n"
                                     "below `HKEY_CURRENT_USER\\Software\\VB and VBA Program "
                                     "Settings\\Ornavel`, a subkey for each section. A **switch** is "
                                     "on\n"
                                     "at exactly `True`, a **tick** at exactly `1`. A **path** may be of the "
                                     "kind REG_EXPAND_SZ. What a setting reads as "
                                     "when\n"
                                     "it is not set stands under \"default\".\n";

const char* name_of(SettingKind kind) {
    constexpr const char* names[] = {"text", "switch", "tick", "number", "path"};
    return names[static_cast<std::size_t>(kind)];
}

std::string kind_of(const Description& description) {
    const bool choice = description.key.kind == SettingKind::text && !description.allowed.empty();
    return choice ? "choice" : name_of(description.key.kind);
}

std::string readers_of(const Description& description) {
    if (description.readers.parts.empty()) return "nobody: it has no effect";
    return to_utf8(description.readers.parts) +
           (description.readers.not_yet ? " (not yet: it has no effect so far)" : "");
}

/// The values that are told apart, such as "True, False".
std::string allowed_of(const Description& description) {
    std::string list;
    for (const Text& value : split(description.allowed, u"|"))
        list += (list.empty() ? "" : ", ") + (value.empty() ? std::string("(empty)") : to_utf8(value));
    return list;
}

Json as_json(const Description& description) {
    return {{"section", to_utf8(description.key.section)},
            {"key", to_utf8(description.key.name)},
            {"kind", kind_of(description)},
            {"default", to_utf8(description.key.default_value)},
            {"allowed", allowed_of(description)},
            {"group", to_utf8(settings::name_of(description.group))},
            {"owner", to_utf8(settings::name_of(description.owner))},
            {"readers", to_utf8(description.readers.parts)},
            {"has_effect", !description.readers.parts.empty() && !description.readers.not_yet},
            {"writers", to_utf8(description.writers)},
            {"meaning", to_utf8(description.meaning)}};
}

/// A text that stands in a cell of a table.
std::string in_cell(TextView text) {
    return to_utf8(replace_all(replace_all(Text(text), u"|", u"\\|"), u"<", u"&lt;"));
}

std::string code(TextView text) {
    return text.empty() ? "" : "`" + to_utf8(replace_all(Text(text), u"|", u"\\|")) + "`";
}

void print_markdown(std::ostream& stream) {
    stream << introduction;
    TextView section;
    for (const Description& description : settings::descriptions()) {
        if (description.key.section != section) {
            section = description.key.section;
            stream << "\n## " << section
                   << "\n\n| setting | kind | default | meaning | about | whose | read by | saved by |\n"
                      "|---|---|---|---|---|---|---|---|\n";
        }
        const bool told_apart = kind_of(description) == "choice";
        stream << "| **" << description.key.name << "** | " << kind_of(description)
               << (told_apart ? ": " + in_cell(from_utf8(allowed_of(description))) : "") << " | "
               << code(description.key.default_value) << " | " << in_cell(description.meaning) << " | "
               << settings::name_of(description.group) << " | " << settings::name_of(description.owner)
               << " | " << readers_of(description) << " | " << description.writers << " |\n";
    }
}

void print_text(std::ostream& stream) {
    for (const Description& description : settings::descriptions()) {
        stream << description.key.section << " / " << description.key.name << "  (" << kind_of(description)
               << ", default \"" << description.key.default_value << "\")\n    " << description.meaning
               << '\n';
        if (!description.allowed.empty()) stream << "    Values: " << allowed_of(description) << '\n';
        stream << "    Read by: " << readers_of(description);
        if (!description.writers.empty()) stream << ". Saved by: " << description.writers;
        stream << '\n';
    }
}

void print_json(std::ostream& stream) {
    Json list = Json::array();
    for (const Description& description : settings::descriptions()) list.push_back(as_json(description));
    stream << list.dump(2) << '\n';
}

void print_fields(std::ostream& stream, const std::string& format) {
    if (format != "json") return print_field_reference(stream, format == "markdown");
    Json list = Json::array();
    for (const FieldRow& row : field_rows())
        list.push_back({{"field", to_utf8(row.field)},
                        {"filled_with", to_utf8(row.source)},
                        {"messages", row.in_messages},
                        {"signature_files", row.in_signature_files},
                        {"while_empty", to_utf8(row.while_empty)}});
    stream << list.dump(2) << '\n';
}

struct SettingsOptions {
    std::string format = "text", out;
    bool fields = false, json = false;
};

Exit print(const SettingsOptions& options, Context& context) {
    const std::string format = options.json ? "json" : options.format;
    std::ostringstream page;
    if (options.fields)
        print_fields(page, format);
    else if (format == "json")
        print_json(page);
    else
        format == "markdown" ? print_markdown(page) : print_text(page);
    deliver(context, options.out, page.str());
    return fine;
}

} // namespace

void add_settings(CLI::App& program, Task& task) {
    const auto options = std::make_shared<SettingsOptions>();
    CLI::App* command = program.add_subcommand("settings", "Prints what every setting means, or every field");
    command->add_option("--format", options->format, "How")
        ->check(CLI::IsMember({"text", "markdown", "json"}));
    command->add_flag("--json", options->json, "The same as --format json");
    command->add_flag("--fields", options->fields, "The fields of templates and signatures");
    command->add_option("-o", options->out, "The file; without it the standard output")->type_name("FILE");
    command->footer(examples);
    command->callback(
        [options, &task] { task = [options](Context& context) { return print(*options, context); }; });
}

} // namespace ornavel::workbench
