#include "workbench/lint/linter.h"

#include "base/encoding.h"
#include "compose/composition.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

using namespace settings;

constexpr void (*every_check[])(const Sheet&) = {check_marker,   check_fields, check_empty_lines,
                                                 check_script,   check_images, check_layout,
                                                 check_clean_up, check_charset};

/// Whether UTF-16 was saved without its mark: every other byte of a Western text is then a NUL.
bool is_unmarked_utf16(std::string_view bytes) {
    if (bytes.size() < 4 || bytes.size() % 2 != 0 || bytes.starts_with("\xFF\xFE") ||
        bytes.starts_with("\xFE\xFF"))
        return false;
    std::size_t counts[2] = {};
    for (std::size_t at = 0; at < bytes.size(); ++at)
        if (bytes[at] == '\0') ++counts[at % 2];
    const std::size_t half = bytes.size() / 2;
    return std::max(counts[0], counts[1]) > half / 2 && std::min(counts[0], counts[1]) < half / 16 + 1;
}

bool silenced(const Page& page, std::string_view rule) {
    return std::ranges::any_of(page.comments, [&](const Text& comment) {
        return contains(comment, u"ornavel-lint: allow " + from_utf8(rule) + u" ") ||
               contains(comment, u"ornavel-lint: allow " + from_utf8(rule) + u"-->");
    });
}

void sort(std::vector<Finding>& findings) {
    std::ranges::stable_sort(
        findings, {}, [](const Finding& finding) { return std::pair(finding.at.line, finding.at.column); });
}

Text plain_folder(const Drives& files, TextView folder) {
    Text path = files.real_path(folder);
    std::ranges::replace(path, u'\\', u'/');
    path = replace_all(path, u"//", u"/");
    while (path.ends_with(u'/')) path.pop_back();
    return path;
}

bool lies_in(const Ground& ground, TextView path, const PathKey& key) {
    if (!ground.store.find(key.section, key.name)) return false;
    return same_name(plain_folder(ground.files, folder_of(path)),
                     plain_folder(ground.files, read(ground.store, key)));
}

} // namespace

void Findings::add(TextView file, Place at, std::string_view rule, Text message, Text mend) {
    const auto known = std::ranges::find(rules(), rule, &Rule::name);
    findings_.push_back({Text(file), at, known->name, known->severity, std::move(message), std::move(mend)});
}

Text shown(TextView text) {
    constexpr std::size_t most = 60;
    Text line(text.substr(0, most));
    for (char16_t& unit : line)
        if (unit < u' ') unit = u' ';
    return u"\"" + line + (text.size() > most ? u"...\"" : u"\"");
}

Assigned role_of(const Ground& ground, TextView path, TextView text, std::optional<Role> told) {
    if (told) return {*told};
    const bool is_text = lower_case(path).ends_with(u".txt");
    const bool in_templates = lies_in(ground, path, admin::HTMFilesPath);
    const bool in_signatures = lies_in(ground, path, admin::SignaturesPath);
    if (is_text && in_templates) return {Role::boilerplate};
    if (in_templates != in_signatures) return {in_templates ? Role::letterhead : Role::signature};
    if (is_text) return {Role::boilerplate, true};
    return {contains(text, compose::insertion_marker) ? Role::letterhead : Role::signature, !in_templates};
}

bool is_binary(std::string_view bytes) {
    const bool utf16 = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    return !utf16 && bytes.find('\0') != bytes.npos && !is_unmarked_utf16(bytes);
}

std::vector<Finding> lint_file(const Ground& ground, TextView path, const std::string& bytes, Role role) {
    Findings findings;
    if (is_unmarked_utf16(bytes)) {
        findings.add(path, {}, "charset",
                     u"This is UTF-16 without a byte-order mark, so Ornavel reads it letter by byte",
                     u"Save it with a mark, or in UTF-8");
        return std::move(findings.all());
    }
    const Page page(decode(bytes, ground.files.ansi()));
    const Sheet sheet{ground, Text(path), role, bytes, page, findings};
    if (role == Role::boilerplate)
        check_fields(sheet), check_charset(sheet);
    else
        for (const auto check : every_check) check(sheet);
    std::erase_if(findings.all(), [&](const Finding& finding) { return silenced(page, finding.rule); });
    sort(findings.all());
    return std::move(findings.all());
}

std::vector<Finding> lint_settings(const Ground& ground) {
    Findings findings;
    check_settings(ground, findings);
    check_values(ground, findings);
    sort(findings.all());
    return std::move(findings.all());
}

} // namespace ornavel::workbench
