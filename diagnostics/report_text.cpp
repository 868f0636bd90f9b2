#include "diagnostics/report_text.h"

#include "diagnostics/about.h"
#include "diagnostics/basSysInfo.h"
#include "host/versions.h"

namespace ornavel::diagnostics {
namespace {

using namespace settings;

struct StoredValue {
    TextView label;
    const Key& key;
};

constexpr TextView version = u"" ORNAVEL_VERSION;
constexpr TextView version_comments = u"" ORNAVEL_COMMENTS;
constexpr TextView file_description = u"" ORNAVEL_FILE_DESCRIPTION;

constexpr StoredValue stored_values[] = {
    {u"Template: ", user::Template},
    {u"Template path: ", admin::HTMFilesPath},
    {u"Signature: ", user::Signature},
    {u"Signature path: ", admin::SignaturesPath},
    {u"SuppressMailItemToolbar: ", admin::SuppressMailItemToolbar},
    {u"SysTray: ", admin::SysTray},
    {u"SuppressToolbar: ", user::SuppressToolbar},
    {u"PromptOnReplies: ", user::PromptOnReplies},
    {u"Performance: ", system::Performance},
    {u"Reply as is: ", user::ReplyAsIs},
};

Text joined(const std::vector<Text>& lines) {
    Text text;
    for (const Text& line : lines) text += (text.empty() ? u"" : Text(line_end)) + line;
    return text;
}

Text outlook_version(const host::Application& application) {
    Text told;
    attempt([&] { told = application.version(); });
    return told;
}

TextView name_of_editor(int kind) {
    switch (kind) {
    case host::plain_text_editor:
        return u"Text";
    case host::html_editor:
        return u"HTML";
    case host::rich_text_editor:
        return u"RTF";
    case host::word_editor:
        return u"WORD";
    default:
        return u"unknown";
    }
}

} // namespace

Text report_text(const ErrorRecord& error, const ReportSources& sources) {
    std::vector<Text> lines{
        u"Date (mdy): " + error.date,
        u"Description: " + error.description,
        u"Sub/function: " + error.sub_function,
        u"Section: " + error.section,
        u"Outlook Version: " + outlook_version(sources.application),
        u"Ornavel Version: " + Text(version),
        u"Ornavel Version Comments: " + Text(version_comments),
        u"Ornavel Version Description: " + Text(file_description),
        u"Application System path: " + Text(sources.addin_folder),
    };
    // As stored: an absent setting prints as empty, whatever its default is.
    for (const auto& [label, key] : stored_values)
        lines.push_back(Text(label) + sources.settings.find(key.section, key.name).value_or(Text()));

    // A lone line feed, where every other line ends in CR LF: readers of the reports know it so.
    Text text = joined(lines) + u"\n";
    attempt([&] { text += joined(system_lines(sources.machine)); });
    return text;
}

Text editor_lines(const host::MailItem& item, const host::Application& application) {
    Text lines;
    attempt([&] {
        const host::Inspector inspector = item.inspector();
        attempt([&] {
            lines += Text(line_end) + u"Word as editor: " + (inspector.is_word_mail() ? u"true" : u"false");
        });
        attempt([&] {
            lines += Text(line_end) + u"Editor type: " + Text(name_of_editor(kind_of(item, application)));
        });
    });
    return lines;
}

} // namespace ornavel::diagnostics
