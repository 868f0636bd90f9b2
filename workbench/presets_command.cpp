#include "base/encoding.h"
#include "settings/reg_settings.h"
#include "workbench/command.h"
#include "workbench/people.h"
#include "workbench/settings_file.h"

#include <algorithm>
#include <map>
#include <set>

namespace ornavel::workbench {
namespace {

using namespace settings;

constexpr const char* presets_example =
    "Columns of a table or attributes of a directory become settings: displayName, title, mail, "
    "telephoneNumber,\n"
    "facsimileTelephoneNumber, mobile, o, ou, street, postalCode with l, wWWHomePage, and any key of the "
    "catalogue under\n"
    "its own name. --map names a file such as {\"Durchwahl\": \"Admin Settings/SigTelephone\"}. Each file is "
    "named after\n"
    "mail, or --name COLUMN. Files of people who are no longer in the list are named and stay.\n\n"
    "Example:\n"
    "  ornavel presets people.csv --base samples/marlow-hale.reg -o presets";

struct PresetsOptions {
    std::string people, base, map, out, name = "mail";
    bool escape = false, json = false;
};

/// A column and the setting that it becomes.
struct Mapping {
    Text column;
    const Key* key;
};

const std::vector<Mapping>& known_mappings() {
    static const std::vector<Mapping> mappings{{u"displayName", &admin::SigFullname},
                                               {u"title", &admin::SigPosition},
                                               {u"mail", &admin::SigEmail},
                                               {u"telephoneNumber", &admin::SigTelephone},
                                               {u"facsimileTelephoneNumber", &admin::SigFax},
                                               {u"mobile", &admin::SigCell},
                                               {u"o", &admin::SigOrganizationName},
                                               {u"ou", &admin::SigDivision},
                                               {u"street", &admin::SigAddress},
                                               {u"wWWHomePage", &admin::SigWebsite}};
    return mappings;
}

const Key* key_called(TextView section_and_key) {
    const auto slash = section_and_key.find(u'/');
    return slash == Text::npos
               ? nullptr
               : find_key(section_and_key.substr(0, slash), section_and_key.substr(slash + 1));
}

/// The mappings of a file. Throws Failure for anything but {"column": "section/key"}.
std::vector<Mapping> mappings_in(const Files& files, const std::string& path) {
    const Json json = Json::parse(files.read(from_utf8(path)), nullptr, false);
    if (!json.is_object()) throw Failure(from_utf8(path) + u": expected {\"column\": \"section/key\"}");
    std::vector<Mapping> mappings;
    for (const auto& [column, target] : json.items()) {
        const Key* key = target.is_string() ? key_called(from_utf8(target.get<std::string>())) : nullptr;
        if (!key) throw Failure(from_utf8(path + ": " + column + ": there is no setting " + target.dump()));
        mappings.push_back({from_utf8(column), key});
    }
    return mappings;
}

Text escaped(const Text& value) {
    return replace_all(replace_all(replace_all(value, u"&", u"&amp;"), u"<", u"&lt;"), u">", u"&gt;");
}

/// A file's name with "_" for what no file of Windows may be named.
Text fit_for_a_file(Text name) {
    for (char16_t& unit : name)
        if (unit < u' ' || TextView(u"<>:\"/\\|?*").find(unit) != Text::npos) unit = u'_';
    while (!name.empty() && (name.back() == u'.' || name.back() == u' ')) name.back() = u'_';
    return name;
}

struct NameOrder {
    using is_transparent = void;
    bool operator()(TextView left, TextView right) const { return name_before(left, right); }
};

class Presets {
public:
    Presets(const PresetsOptions& options, Context& context)
        : options_(options), context_(context), folder_(from_utf8(options.out)),
          base_(read_registry_file(context.files, from_utf8(options.base)).keys) {
        if (!options.map.empty()) own_ = mappings_in(context.files, options.map);
        keep_own_area();
    }

    Exit run() {
        context_.files.create_folder(folder_);
        const auto there_before = context_.files.list(folder_);
        read_people(context_.files, from_utf8(options_.people), [&](const Person& person) { take(person); });
        for (const Text& name : there_before)
            if (lower_case(name).ends_with(u".reg") && !names_.contains(name)) gone_.push_back(name);
        options_.json ? print_json() : print();
        return clashes_ > 0 ? found_something : fine;
    }

private:
    /// What the common settings say outside the add-in's area is no person's.
    void keep_own_area() {
        std::erase_if(base_, [](const RegKey& key) {
            return !same_name(TextView(key.path).substr(0, registry_area.size()), registry_area);
        });
    }

    void take(const Person& person) {
        ++people_;
        const Text file = file_for(person);
        if (file.empty()) return;
        auto keys = base_;
        for (const auto& [key, value] : settings_of(person)) put(keys, *key, value);
        note_gaps(keys, file);
        context_.files.write(folder_ + u"/" + file, write_reg_file(keys, context_.files.ansi()));
    }

    /// Nothing for a person without a name for the file, and where another has it already: both are told.
    Text file_for(const Person& person) {
        const Text* const name = person.find(from_utf8(options_.name));
        const auto where = from_utf8(options_.people);
        if (!name || trim(*name).empty())
            return complain(at(where, {person.line, 1}, u"nothing to name the file after")), Text();
        const Text file = fit_for_a_file(trim(*name)) + u".reg";
        const auto [other, is_new] = names_.try_emplace(file, person.line);
        if (is_new) return file;
        complain(at(where, {person.line, 1},
                    file + u" is named twice; the other stands in line " +
                        to_text(static_cast<long long>(other->second))));
        return {};
    }

    void complain(const Text& text) {
        ++clashes_;
        context_.err << "ornavel: " << text << '\n';
    }

    std::map<const Key*, Text> settings_of(const Person& person) const {
        std::map<const Key*, Text> values;
        for (const auto& [column, value] : person.values)
            if (const Key* key = key_for(column); key && !trim(value).empty())
                values.try_emplace(key, trim(value));
        const Text *code = person.find(u"postalCode"), *town = person.find(u"l");
        const Text second = trim((code ? *code : Text()) + u" " + (town ? *town : Text()));
        if (!second.empty() && !mapped(u"postalCode") && !mapped(u"l"))
            values.try_emplace(&admin::SigAddress2, second);
        if (options_.escape)
            for (auto& [key, value] : values) value = escaped(value);
        return values;
    }

    bool mapped(TextView column) const {
        return std::ranges::any_of(own_, [&](const Mapping& one) { return same_name(one.column, column); });
    }

    const Key* key_for(TextView column) const {
        for (const auto* mappings : {&own_, &known_mappings()})
            for (const Mapping& mapping : *mappings)
                if (same_name(mapping.column, column)) return mapping.key;
        return find_key(admin_section, column);
    }

    static void put(std::vector<RegKey>& keys, const Key& key, const Text& value) {
        const Text path = Text(registry_area) + u"\\" + Text(key.section);
        auto place = std::ranges::find_if(
            keys, [&](const RegKey& one) { return !one.removed && same_name(one.path, path); });
        if (place == keys.end()) place = keys.insert(keys.end(), RegKey{path});
        std::erase_if(place->values, [&](const RegValue& one) { return same_name(one.name, key.name); });
        place->values.push_back({Text(key.name), RegValue::Kind::text, value});
    }

    void note_gaps(const std::vector<RegKey>& keys, const Text& file) {
        const auto has = [&](const Key& key) {
            for (const RegKey& one : keys)
                for (const RegValue& value : one.values)
                    if (same_name(value.name, key.name) && !value.value.empty()) return true;
            return false;
        };
        for (const TextKey* key :
             {&admin::SigFullname, &admin::SigPosition, &admin::SigEmail, &admin::SigTelephone,
              &admin::SigFax, &admin::SigCell, &admin::SigOrganizationName, &admin::SigWebsite})
            if (!has(*key)) gaps_[Text(key->name)].push_back(file);
    }

    void print() const {
        context_.out << names_.size() << " presets for " << people_ << " people\n";
        for (const auto& [key, files] : gaps_) {
            context_.out << key << " is missing for " << files.size() << ":";
            for (std::size_t at = 0; at < files.size() && at < 10; ++at) context_.out << ' ' << files[at];
            context_.out << (files.size() > 10 ? " ...\n" : "\n");
        }
        for (const Text& name : gone_) context_.out << name << " belongs to nobody in the list; it stays\n";
    }

    void print_json() const {
        Json gaps = Json::object(), gone = Json::array();
        for (const auto& [key, files] : gaps_)
            for (const Text& file : files) gaps[to_utf8(key)].push_back(to_utf8(file));
        for (const Text& name : gone_) gone.push_back(to_utf8(name));
        const Json report{
            {"people", people_}, {"presets", names_.size()}, {"missing", gaps}, {"nobody", gone}};
        context_.out << report.dump(2) << '\n';
    }

    const PresetsOptions& options_;
    Context& context_;
    Text folder_;
    std::vector<RegKey> base_;
    std::vector<Mapping> own_;
    std::map<Text, std::size_t, NameOrder> names_; ///< of the files, with the person's line
    std::map<Text, std::vector<Text>> gaps_;       ///< files by the setting that they lack
    std::vector<Text> gone_;
    std::size_t people_ = 0, clashes_ = 0;
};

} // namespace

void add_presets(CLI::App& program, Task& task) {
    const auto options = std::make_shared<PresetsOptions>();
    CLI::App* command = program.add_subcommand("presets", "Writes a registry file for each person of a list");
    command->add_option("people", options->people, "The list")->required()->type_name("PEOPLE.csv|.ldif");
    command->add_option("--base", options->base, "What all have in common")
        ->required()
        ->type_name("COMMON.reg");
    command->add_option("--map", options->map, "Other columns and their settings")->type_name("MAP.json");
    command->add_option("--name", options->name, "The column that the files are named after")
        ->type_name("COLUMN");
    command->add_option("-o", options->out, "The folder for the files")->required()->type_name("FOLDER");
    command->add_flag("--escape", options->escape,
                      "Writes \"&\", \"<\" and \">\" in values as entities of HTML");
    command->add_flag("--json", options->json, "Prints the report as JSON");
    command->footer(presets_example);
    command->callback([options, &task] {
        task = [options](Context& context) { return Presets(*options, context).run(); };
    });
}

} // namespace ornavel::workbench
