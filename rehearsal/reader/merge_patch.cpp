#include "rehearsal/reader/merge_patch.h"

namespace ornavel::rehearsal {
namespace {

enum class Null { removes, is_a_value };

void merge(Json& target, const Json& patch, Null null) {
    if (!patch.is_object()) {
        target = patch;
        return;
    }
    if (!target.is_object()) target = Json::object();
    for (const auto& [name, value] : patch.items()) {
        if (value.is_null() && null == Null::removes)
            target.erase(name);
        else
            merge(target[name], value, null);
    }
}

} // namespace

void merge_patch(Json& target, const Json& patch) { merge(target, patch, Null::removes); }

void merge_case(Json& world, const Json& patch) {
    Json others = patch;
    others.erase("expect");
    merge_patch(world, others);
    const auto expect = patch.find("expect");
    if (expect == patch.end()) return;
    if (expect->is_null())
        world.erase("expect");
    else
        merge(world["expect"], *expect, Null::is_a_value);
}

} // namespace ornavel::rehearsal
