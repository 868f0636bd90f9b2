#include "compose/signature_files.h"

#include "compose/insertions.h"

#include <utility>

namespace ornavel::compose {
namespace {

using namespace settings;

constexpr TextView name_of_text_signature = u"Ornavel Text Signature.txt";

struct PhoneLine {
    TextView word;
    const TextKey& number;
    const TextKey& label;
};

constexpr PhoneLine phone_lines[] = {
    {u"Cell:", admin::SigCell, admin::SigCellLabel},
    {u"Fax:", admin::SigFax, admin::SigFaxLabel},
    {u"Telephone:", admin::SigTelephone, admin::SigTelephoneLabel},
};

/// Asks about the first error, and logs the others.
class FirstErrorAsks final : public ErrorSink {
public:
    explicit FirstErrorAsks(diagnostics::ErrorReports& errors) : errors_(errors) {}
    void take(TextView description, TrapName name) noexcept override {
        if (std::exchange(asked_, true))
            errors_.log_error(description, name);
        else
            errors_.take(description, name);
    }

private:
    diagnostics::ErrorReports& errors_;
    bool asked_ = false;
};

/// The folder of the mail client's signatures, with a backslash at its end.
Text target_folder(const Store& settings, const std::function<Text()>& host_folder) {
    Text folder = read(settings, admin::OutlookSignaturePath);
    if (folder.empty()) folder = host_folder();
    if (!folder.ends_with(u'\\')) folder += u'\\';
    return folder;
}

Text base_name(TextView file) {
    try {
        return template_base_name(file);
    } catch (const Failure& failure) {
        throw Failure(Text(file) + u": " + failure.description());
    }
}

/// What all signatures of one run share.
struct Run {
    const Store& settings;
    Files& files;
    ErrorSink& errors;
    Text target;
    Merge merge = Merge::of_signature_file(settings);
};

Text merged(const Run& run, TextView path) {
    Text signature = with_phone_labels(read_text(run.files, path), run.settings);
    merge_signature_file(signature, run.merge, run.errors);
    return signature;
}

/// The twin of the other ending would be a second signature of the same name.
void remove_twin(Files& files, const Text& path) {
    if (files.file_exists(path)) files.remove(path);
}

void write_html(const Run& run, TextView path, const Text& target) {
    write_whole(run.files, target + u".html", encode_html(merged(run, path)));
    remove_twin(run.files, target + u".htm");
}

void write_rich_text(const Run& run, TextView path, const Text& target) {
    write_whole(run.files, target + u".rtf", encode_rich_text(merged(run, path), run.files.ansi()));
}

bool is_html(TextView name) { return name.ends_with(u".htm") || name.ends_with(u".html"); }
bool is_rich_text(TextView name) { return name.ends_with(u".rtf"); }

struct SignatureKind {
    bool (*holds)(TextView lower_name);
    void (*write)(const Run& run, TextView path, const Text& target);
};
constexpr SignatureKind kinds[] = {{is_html, write_html}, {is_rich_text, write_rich_text}};

std::string encode_plain(TextView text, const CodePage& ansi) {
    if (auto bytes = ansi.encode(text)) return *bytes;
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

void write_all(const Run& run) {
    const Text source = read(run.settings, admin::SignaturesPath) + u"\\";
    const auto names = run.files.list(read(run.settings, admin::SignaturesPath));
    for (const auto& [holds, write] : kinds)
        for (const Text& name : names)
            if (holds(lower_case(name)))
                trap(run.errors, one_signature_trap,
                     [&, writing = write] { writing(run, source + name, run.target + base_name(name)); });
    trap(run.errors, text_signature_trap, [&] {
        write_whole(run.files, run.target + Text(name_of_text_signature),
                    encode_plain(two_column_signature(run.settings), run.files.ansi()));
    });
}

Text columns(const Text& left, const Text& right) {
    constexpr std::size_t width = 45;
    const std::size_t padding = left.size() < width ? width - left.size() : 0;
    return left + Text(padding, u' ') + right + Text(line_end);
}

/// The labels are padded to 11 characters, so that the values line up.
Text labelled(TextView label, const Text& value) { return value.empty() ? Text() : Text(label) + value; }

} // namespace

Text with_phone_labels(Text signature, const Store& settings) {
    for (const auto& [word, number, label] : phone_lines) {
        const Text own = read(settings, label, {});
        if (read(settings, number).empty())
            signature = replace_all(std::move(signature), word, {});
        else if (!own.empty())
            signature = replace_all(std::move(signature), word, own);
    }
    return signature;
}

Text two_column_signature(const Store& settings) {
    const auto value = [&](const TextKey& key) { return read(settings, key); };
    return value(admin::SigFullname) + Text(line_end) +
           columns(value(admin::SigOrganizationName), value(admin::SigWebsite)) +
           columns(value(admin::SigPosition), value(admin::SigEmail)) +
           columns(value(admin::SigAddress), labelled(u"Telephone: ", value(admin::SigTelephone))) +
           columns(value(admin::SigAddress2), labelled(u"Fax:       ", value(admin::Sigfax))) +
           columns(value(admin::SigAddress3), labelled(u"Cell:      ", value(admin::SigCell))) +
           value(admin::SigAddress4) + Text(line_end);
}

std::string encode_rich_text(TextView text, const CodePage& ansi) {
    std::string bytes;
    for (const char16_t unit : text) {
        if (const auto known = ansi.encode({&unit, 1}))
            bytes += *known;
        else // numbers there are signed and have 16 bits
            bytes += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
    }
    return bytes;
}

void write_signature_files(const Store& settings, Files& files, const std::function<Text()>& host_folder,
                           diagnostics::ErrorReports& errors) noexcept {
    FirstErrorAsks sink(errors);
    trap(sink, signature_folder_trap, [&] {
        const Text target = target_folder(settings, host_folder);
        if (!files.folder_exists(target)) throw Failure(target + u": Path not found");
        write_all({settings, files, sink, target});
    });
}

} // namespace ornavel::compose
