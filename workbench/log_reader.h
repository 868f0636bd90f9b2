#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel::workbench {

/// A send as its system-check lines tell it.
struct LoggedSend {
    Text date;
    std::size_t line = 0;      ///< of its first line
    std::vector<Text> records; ///< the labels, in their order
    bool marker_loaded = false;
    Text resend_gate{}; ///< of one that left before the records began
    std::optional<Text> error_gate{};
    Text error{};
};

/// The sends of a log. Lines that are none of the system check's or of the pipeline's errors are passed over.
std::vector<LoggedSend> sends_in(TextView log);

/// One way in which a send may have left: the gate, and why; several rows of one gate are several reasons.
struct WayOut {
    Text gate, because;
    Text setting; ///< "Section / Key" that decided; empty where no single one did
};

/// What the records of a send come to.
struct Way {
    std::vector<Text> passed; ///< gates
    std::vector<WayOut>
        left; ///< several where the log can't tell them apart; none for a send that passed all
    bool dressed = false;
    Text remark{}; ///< what else there is to say
};
Way way_of(const LoggedSend& send);

} // namespace ornavel::workbench
