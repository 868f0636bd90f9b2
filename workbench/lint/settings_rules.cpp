#include "base/nearest.h"
#include "settings/descriptions.h"
#include "workbench/lint/sheet.h"

#include <algorithm>

namespace ornavel::workbench {
namespace {

using namespace settings;

class SettingsCheck {
public:
    SettingsCheck(const Ground& ground, Findings& findings)
        : ground_(ground), findings_(findings),
          profiles_(split(read(ground.store, user::SignatureList), u";")) {}

    void run() {
        for (const FileSetting& setting : ground_.file->settings) check(setting);
        check_choice(admin::HTMFilesPath, user::Template);
        check_choice(admin::SignaturesPath, user::Signature);
        check_reply_markers();
        check_first_start();
        check_reports();
    }

private:
    void tell(Place at, std::string_view rule, Text message, Text mend) {
        findings_.add(ground_.file->path, at, rule, std::move(message), std::move(mend));
    }
    void tell(const Key& key, std::string_view rule, Text message, Text mend) {
        tell(ground_.file->place_of(key), rule, std::move(message), std::move(mend));
    }

    void check(const FileSetting& setting) {
        const Key* key = find_key(setting.section, setting.name);
        if (!key) return check_unknown(setting);
        if (key->kind == SettingKind::switch_ && setting.value != on && setting.value != off)
            tell(setting.at, "switch-value",
                 Text(key->name) + u" is " + shown(setting.value) + u", so it is off",
                 u"Write \"True\" or \"False\", with these capitals");
        if (key->kind == SettingKind::tick) check_tick(*key, setting);
        if (key->kind == SettingKind::path) check_path(*key, setting);
    }

    void check_tick(const Key& key, const FileSetting& setting) {
        if (setting.value == u"0" || setting.value == u"1") return;
        const bool skip_internal = same_name(key.name, admin::SkipInternal.name);
        if (!skip_internal)
            return tell(setting.at, "switch-value",
                        Text(key.name) + u" is " + shown(setting.value) + u", so it is off",
                        u"Write \"0\" or \"1\"");
        if (setting.value != off) // "False" looks off and is
            tell(setting.at, "skip-internal",
                 u"SkipInternal is " + shown(setting.value) + u": only \"1\" is on", u"Write \"1\" or \"0\"");
    }

    void check_path(const Key& key, const FileSetting& setting) {
        for (const Text& one : split(setting.value, u";")) {
            const bool has_variable = contains(one, u"%"), is_address = contains(one, u"://");
            if (one.empty() || has_variable || is_address || !ground_.files.can_tell(one)) continue;
            // The first error makes the log's file, but never its folder.
            const bool is_log = same_name(key.name, admin::ErrorFileLocation.name);
            const Text wanted = is_log ? folder_of(one) : one;
            if (ground_.files.folder_exists(wanted) || ground_.files.file_exists(wanted)) continue;
            tell(setting.at, "path-missing", Text(key.name) + u" names " + wanted + u", which is not there",
                 u"Correct the path, or make it");
        }
    }

    bool is_profile(const FileSetting& setting) const {
        const bool named = std::ranges::any_of(
            profiles_, [&](const Text& profile) { return same_name(trim(profile), setting.section); });
        return named && same_name(TextView(setting.name).substr(0, 3), u"Sig");
    }

    void check_unknown(const FileSetting& setting) {
        if (is_profile(setting)) return;
        const Text name = setting.section + u"/" + setting.name;
        for (const Key& key : catalogue())
            if (same_name(key.name, setting.name))
                return tell(setting.at, "setting-unknown",
                            name + u" is never read: it belongs to " + Text(key.section), u"Move it there");
        std::vector<Text> names;
        for (const Key& key : catalogue()) names.emplace_back(key.name);
        const auto near = nearest(setting.name, names);
        tell(setting.at, "setting-unknown", u"There is no setting " + name,
             near ? u"Did you mean " + *near + u"?" : Text(u"docs/settings.md lists all settings"));
    }

    /// The file that a folder and a name lead to.
    void check_choice(const PathKey& folder, const TextKey& name) {
        const Text chosen = trim(read(ground_.store, name)), where = read(ground_.store, folder);
        if (chosen.empty() || chosen == u"none" || contains(where, u"%") || !ground_.files.can_tell(where))
            return;
        if (!ground_.store.find(folder.section, folder.name) || !ground_.files.folder_exists(where)) return;
        if (!ground_.files.file_exists(where + u"\\" + chosen))
            tell(name, "path-missing",
                 Text(name.name) + u" names " + chosen + u", which is not in " + where +
                     u"; the first HTML file there takes its place",
                 u"Correct the name, or bring the file");
    }

    void check_reply_markers() {
        check_marker(system::MyReplySearchString, u"Outlook 2000 and 2002, and for plain text",
                     u"-----Original");
        check_marker(system::Office2003SearchString, u"Outlook 2003", u"<HR tabIndex=-1> (Word: <hr size=)");
    }

    void check_marker(const TextKey& key, TextView versions, TextView proposal) {
        const Text marker = read(ground_.store, key), lower = lower_case(marker);
        const Text mend = u"Set " + Text(key.name) + u" to " + Text(proposal);
        if (marker.empty())
            tell(key, "reply-marker",
                 u"There is no reply marker for " + Text(versions) +
                     u": signatures land below the quoted mail",
                 mend);
        else if (contains(lower, u"-----original message-----"))
            tell(key, "reply-marker",
                 Text(key.name) + u" holds words that HTML wraps over two lines, and then no reply is "
                                  u"recognised",
                 mend);
        else if (contains(lower, u"<div class=outlookmessageheader"))
            tell(key, "reply-marker",
                 Text(key.name) +
                     u" occurs on the user's own paragraphs as well, and what follows is cut off",
                 mend);
    }

    void check_first_start() {
        for (const TextKey* key : {&admin::SigEmail, &admin::SigWebsite})
            if (read(ground_.store, *key).empty())
                tell(*key, "first-start",
                     Text(key->name) + u" is empty, so the setup program starts at every connection",
                     u"Set it");
    }

    void check_reports() {
        const bool own_address =
            read(ground_.store, admin::EmailAddressNotify) != admin::EmailAddressNotify.default_value;
        if (ground_.is_on(admin::EmailErrorNotify) && !own_address)
            tell(admin::EmailErrorNotify, "reports-on",
                 u"EmailErrorNotify is on, and reports go to an address that reaches nobody",
                 u"Set EmailAddressNotify, or EmailErrorNotify to \"False\"");
    }

    const Ground& ground_;
    Findings& findings_;
    std::vector<Text> profiles_;
};

} // namespace

void check_settings(const Ground& ground, Findings& findings) { SettingsCheck(ground, findings).run(); }

} // namespace ornavel::workbench
