#include "tests/coverage/gaps.h"

#include "base/encoding.h"
#include "compose/composer.h"
#include "connect/send_pipeline.h"
#include "forms/BrevantUser.h"
#include "forms/frmSysTray.h"
#include "rehearsal/native/watching.h"
#include "rehearsal/reader/json_place.h"
#include "settings/catalogue.h"

#include <algorithm>

namespace ornavel::coverage {
namespace {

using rehearsal::JsonPlace;

void read_names(Reasons& reasons, const JsonPlace& names, const Text& because) {
    names.each_element([&](const JsonPlace& name) {
        if (!reasons.emplace(name.text(), because).second) name.refuse("excused twice");
    });
}

void read_excuse(Excuses& excuses, const JsonPlace& place) {
    place.must_be_object();
    if (!place.json().contains("because")) place.refuse("because: missing");
    const Text because = place.member("because").text();
    place.fields({
        {"because", [](const JsonPlace&) {}},
        {"verdicts", [&](const JsonPlace& at) { read_names(excuses.verdicts, at, because); }},
        {"traps", [&](const JsonPlace& at) { read_names(excuses.traps, at, because); }},
        {"settings", [&](const JsonPlace& at) { read_names(excuses.settings, at, because); }},
    });
}

class Gaps {
public:
    std::vector<std::string> lines;

    void look_at(const char* kind, const std::vector<Text>& known, const Section& section,
                 const Reasons& reasons) {
        const auto is_covered = [&](const Text& name) {
            const auto hits = section.find(name);
            return hits != section.end() && hits->second.scenarios > 0;
        };
        const auto say = [&](const Text& name, const char* what) {
            lines.push_back(std::string(kind) + " \"" + to_utf8(name) + "\": " + what);
        };
        for (const Text& name : known)
            if (!is_covered(name) && !reasons.contains(name)) say(name, "no scenario comes to it");
        for (const auto& [name, because] : reasons) {
            if (std::ranges::find(known, name) == known.end()) say(name, "is excused, and there is none");
            if (is_covered(name)) say(name, "is excused, and a scenario comes to it");
        }
    }

    void look_at_unknown(const Section& traps, const std::vector<Text>& known) {
        for (const auto& [name, hits] : traps)
            if (std::ranges::find(known, name) == known.end())
                lines.push_back("trap \"" + to_utf8(name) + "\": is sprung, and nobody knows it");
    }
};

} // namespace

Known known() {
    Known all;
    for (const TextView gate : connect::gate_names())
        for (const auto verdict : {connect::Verdict::next, connect::Verdict::off, connect::Verdict::leave})
            all.verdicts.push_back(verdict_of(gate, rehearsal::name_of(verdict)));
    for (const auto& traps : {connect::traps(), compose::traps(), forms::send_options_traps(),
                              std::vector{forms::preview_trap, forms::send_to_many_trap, forms::tray_trap,
                                          forms::support_request}})
        for (const TrapName& trap : traps) all.traps.push_back(rehearsal::name_of(trap));
    for (const auto& key : settings::catalogue()) all.settings.push_back(setting_of(key.section, key.name));
    return all;
}

Excuses read_excuses(const rehearsal::Json& json, const std::string& source) {
    Excuses excuses;
    JsonPlace(json, source).each_element([&](const JsonPlace& at) { read_excuse(excuses, at); });
    return excuses;
}

std::vector<std::string> gaps(const Known& known, const Tally& tally, const Excuses& excuses) {
    Gaps found;
    found.look_at("verdict", known.verdicts, tally.verdicts, excuses.verdicts);
    found.look_at("trap", known.traps, tally.traps, excuses.traps);
    found.look_at("setting", known.settings, tally.settings, excuses.settings);
    found.look_at_unknown(tally.traps, known.traps);
    return std::move(found.lines);
}

} // namespace ornavel::coverage
