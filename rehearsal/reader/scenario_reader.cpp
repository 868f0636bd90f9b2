#include "rehearsal/reader/parts.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace ornavel::rehearsal {
namespace {

template <class Entry, class Read>
std::vector<Entry> read_list(const JsonPlace& place, Read read) {
    std::vector<Entry> list;
    place.each_element([&](const JsonPlace& element) { list.push_back(read(element)); });
    return list;
}

void read_members(Scenario& scenario, const JsonPlace& place) {
    place.fields({
        {"name", [&](const JsonPlace& at) { scenario.name = at.text(); }},
        {"clock", [&](const JsonPlace& at) { scenario.clock = at.time(); }},
        {"settings", [&](const JsonPlace& at) { scenario.settings = read_settings(at); }},
        {"files", [&](const JsonPlace& at) { scenario.files = read_files(at); }},
        {"folders", [](const JsonPlace&) {}},
        {"registry", [&](const JsonPlace& at) { scenario.registry = read_registry(at); }},
        {"computer", [&](const JsonPlace& at) { scenario.computer = read_computer(at); }},
        {"host", [&](const JsonPlace& at) { scenario.host = read_host(at); }},
        {"items", [&](const JsonPlace& at) { scenario.items = read_list<Item>(at, read_item); }},
        {"user", [&](const JsonPlace& at) { scenario.user = read_user(at); }},
        {"fail", [&](const JsonPlace& at) { scenario.fail = read_list<Failing>(at, read_failing); }},
        {"do", [&](const JsonPlace& at) { scenario.acts = read_list<Act>(at, read_act); }},
        {"expect",
         [&](const JsonPlace& at) {
             check_expectation(at);
             scenario.expect = at.json();
         }},
    });
}

} // namespace

Scenario read_scenario(const Json& json, const std::string& source, Binding binding) {
    const JsonPlace place(json, source);
    Scenario scenario;
    read_members(scenario, place);
    if (json.contains("folders")) scenario.folders = read_folders(place.member("folders"), scenario.files);
    if (!json.contains("do")) place.refuse("do: missing");
    check_acts(scenario, source);
    if (binding != Binding::native) check_native_only(place);
    return scenario;
}

bool can_be_created(const Host& host, TextView prog_id) {
    return std::ranges::none_of(
        host.objects, [&](const auto& entry) { return same_name(entry.first, prog_id) && !entry.second; });
}

Json with_files_inside(Json json, const Scenario& scenario) {
    if (!json.contains("files")) return json;
    auto file = scenario.files.begin();
    for (auto& [path, contents] : json["files"].items()) {
        if (contents.is_object()) contents = Json{{"base64", encode_base64(file->second)}};
        ++file;
    }
    return json;
}

std::string load_file(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream bytes;
    if (!stream || !(bytes << stream.rdbuf() || stream.peek() == std::ifstream::traits_type::eof()))
        throw Unusable(path + ": can't be read");
    return bytes.str();
}

} // namespace ornavel::rehearsal
