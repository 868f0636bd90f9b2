#pragma once

#include "rehearsal/json.h"

namespace ornavel::rehearsal {

/// Changes the target as a JSON merge patch says (RFC 7396): objects are merged, a null removes its member,
/// everything else replaces what was there.
void merge_patch(Json& target, const Json& patch);

/// A case merged into its world: a merge patch, but in "expect" a null is a value and removes nothing.
void merge_case(Json& world, const Json& patch);

} // namespace ornavel::rehearsal
