#include "rehearsal/reader/suite.h"

#include "rehearsal/reader/json_place.h"
#include "rehearsal/reader/merge_patch.h"
#include "rehearsal/scenario.h"

#include <algorithm>

namespace ornavel::rehearsal {
namespace {

std::string beside(const std::string& file, const std::string& name) {
    const auto end = file.find_last_of('/');
    return name.starts_with('/') || end == std::string::npos ? name : file.substr(0, end + 1) + name;
}

/// The same part of a scenario, with every file that it takes named by its path.
Json with_paths(Json part, const std::string& file) {
    if (!part.is_object() || !part.contains("files")) return part;
    for (Json& contents : part["files"])
        if (contents.is_object() && contents.contains("from") && contents["from"].is_string())
            contents["from"] = beside(file, contents["from"]);
    return part;
}

Json world_in(const std::string& file, const JsonPlace& named) {
    std::string text;
    try {
        text = load_file(file);
    } catch (const Unusable&) {
        named.refuse("no such file");
    }
    const Json world = parse_json(text, file);
    JsonPlace(world, file).must_be_object();
    return with_paths(world, file);
}

Json read_world(const JsonPlace& place) {
    if (place.is_text()) return world_in(beside(place.source(), place.bytes()), place);
    place.must_be_object();
    return with_paths(place.json(), place.source());
}

/// "item" is about the one message: the world's goes first, then the case's, which may be null to do without
/// the world's.
void apply_items(Json& scenario, const Json& world, const Json& patch, const std::string& source) {
    const bool removed = patch.contains("item") && patch["item"].is_null();
    for (const Json* part : {&world, &patch}) {
        if (removed || !part->contains("item")) continue;
        const JsonPlace item = JsonPlace(*part, source).member("item");
        item.must_be_object();
        if (!scenario.contains("items")) scenario["items"] = Json::array({Json::object()});
        Json& items = scenario["items"];
        if (!items.is_array() || items.size() != 1) item.refuse("there must be one element in items");
        merge_patch(items[0], item.json());
    }
}

std::string name_of(const JsonPlace& place, const std::string& about, std::size_t number) {
    place.must_be_object();
    if (place.json().contains("name") && !place.json()["name"].is_null()) return place.member("name").bytes();
    return (about.empty() ? "" : about + " ") + std::to_string(number);
}

/// A case's scenario under the name given.
WholeScenario whole(const Json& world, const JsonPlace& place, const std::string& name) {
    const std::string source = place.source() + ": " + name;
    const Json patch = with_paths(place.json(), place.source());
    Json scenario = world, rest = patch;
    scenario.erase("item");
    rest.erase("item");
    merge_case(scenario, rest);
    apply_items(scenario, world, patch, source);
    scenario["name"] = name;
    return {place.source(), source, std::move(scenario)};
}

std::vector<WholeScenario> cases_of(const JsonPlace& suite) {
    std::string about;
    Json world = Json::object();
    suite.fields({
        {"about", [&](const JsonPlace& at) { about = at.bytes(); }},
        {"world", [&](const JsonPlace& at) { world = read_world(at); }},
        {"cases", [](const JsonPlace&) {}},
    });
    if (!suite.json().contains("cases")) suite.refuse("cases: missing");
    std::vector<WholeScenario> all;
    suite.member("cases").each_element(
        [&](const JsonPlace& at) { all.push_back(whole(world, at, name_of(at, about, all.size() + 1))); });
    return all;
}

bool is_suite(const Json& json) {
    return json.is_object() && (json.contains("about") || json.contains("world") || json.contains("cases"));
}

} // namespace

std::vector<WholeScenario> scenarios_of(const Json& file, const std::string& path) {
    if (is_suite(file)) return cases_of(JsonPlace(file, path));
    return {{path, path, with_paths(file, path)}};
}

} // namespace ornavel::rehearsal
