#pragma once

#include "rehearsal/report/story.h"

namespace ornavel::rehearsal::report {

/// The gate at which the send left; empty when it left at none.
std::string left_at(const Send& send);

/// Whether an error ended the add-in's part: no gate refused the item, and yet it did not reach the last.
bool ended_by_error(const Send& send);

/// "all gates passed", "left at “message class”"
std::string end_of_the_way(const Send& send);

/// How far the send came, and the setting or property that decided: "It passed 3 gates and left at “message
/// class”: its class is IPM.Task, and only IPM.Note is dressed."
std::string way_through_the_gates(const Story& story, const Send& send);

} // namespace ornavel::rehearsal::report
