#include "rehearsal/native/loaded.h"

namespace ornavel::rehearsal {

Loaded load(const std::string& file, Binding binding) {
    Loaded loaded{file, parse_json(load_file(file), file), {}};
    loaded.scenario = read_scenario(loaded.json, file, binding);
    return loaded;
}

} // namespace ornavel::rehearsal
