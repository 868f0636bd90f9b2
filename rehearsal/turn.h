#pragma once

#include <utility>

namespace ornavel::rehearsal {

/// Whose code is running: the add-in's, or that of the mail client and the machine around it. A search for
/// faults takes memory from the add-in alone.
class Turn {
public:
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn() { addin_ = outer_; }
    static bool is_the_addins() { return addin_; }

protected:
    explicit Turn(bool addin) : outer_(std::exchange(addin_, addin)) {}

private:
    static inline bool addin_ = false;
    bool outer_;
};

/// While it lives, the add-in's code runs.
struct AddInsTurn : Turn {
    AddInsTurn() : Turn(true) {}
};

/// While it lives, the code that the add-in has called runs.
struct MachinesTurn : Turn {
    MachinesTurn() : Turn(false) {}
};

} // namespace ornavel::rehearsal
