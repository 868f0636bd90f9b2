#pragma once

#include "host/value.h"
#include "rehearsal/scenario.h"

#include <functional>

namespace ornavel::rehearsal {

/// How one use of the add-in's surroundings goes wrong. A mail client that has disconnected fails in every
/// later use, too. The last two make the use give back something else instead of failing.
enum class Fault { failure, described_failure, disconnected, wrong_type, empty_value };

/// The failures that a scenario asks for, and the one that a search for faults plants. Counts the uses of the
/// add-in's surroundings over the whole rehearsal.
class Failures {
public:
    struct Use {
        Failing::Kind kind;
        Text subject;
        std::size_t act; ///< the index of the act that was playing
    };

    explicit Failures(std::vector<Failing> entries);

    /// Makes the use with this number, counted from 1 over all uses, go wrong as well.
    void plant(Fault fault, std::size_t use);
    void begin_act(std::size_t act) { act_ = act; }
    /// Every use so far, in order.
    const std::vector<Use>& uses() const { return uses_; }
    /// Keeps nothing of the uses so far.
    void forget() { uses_ = {}; }
    /// Whether the planted fault has had its effect.
    bool has_struck() const { return struck_; }

    /// Counts one use; throws Failure (host::Error for a member) with the entry's words when this use fails.
    void use(Failing::Kind kind, TextView subject);

    /// What the use that was just counted gives back: the value itself, unless the planted fault changes it.
    host::Value given(host::Value value, const std::function<host::Value()>& another_type);
    std::string given(std::string bytes);
    std::optional<Text> given(std::optional<Text> setting);

private:
    struct Counted {
        Failing entry;
        int uses = 0;
    };

    void strike(Failing::Kind kind);
    /// The planted fault, when it is to change what the last use gives back.
    std::optional<Fault> take_change();

    std::vector<Counted> entries_;
    std::vector<Use> uses_;
    std::size_t act_ = 0;
    std::size_t planted_use_ = 0; ///< 0 where nothing is planted
    Fault fault_ = Fault::failure;
    bool struck_ = false;
};

} // namespace ornavel::rehearsal
