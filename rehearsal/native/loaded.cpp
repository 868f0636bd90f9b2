#include "rehearsal/native/loaded.h"

#include "rehearsal/reader/suite.h"

namespace ornavel::rehearsal {

std::vector<Loaded> load(const std::vector<std::string>& files, Binding binding) {
    std::vector<Loaded> all;
    for (const auto& file : files)
        for (auto& whole : scenarios_of(parse_json(load_file(file), file), file)) {
            Scenario scenario = read_scenario(whole.json, whole.source, binding);
            all.push_back({file, std::move(whole.source), std::move(whole.json), std::move(scenario)});
        }
    return all;
}

} // namespace ornavel::rehearsal
