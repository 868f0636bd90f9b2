#pragma once

#include "base/errors.h"
#include "connect/verdict.h"
#include "forms/string_table.h"
#include "rehearsal/journal.h"

namespace ornavel::rehearsal {

/// "passed", "off" or "left".
TextView name_of(connect::Verdict verdict);

/// A trap as the log names it, and by the name that it alone has: its place, where it has one.
Text as_logged(const TrapName& trap);
Text name_of(const TrapName& trap);

/// The add-in's numbered texts; each one that is looked up is noted.
class WatchedStrings final : public forms::StringTable {
public:
    explicit WatchedStrings(Journal& journal) : journal_(journal) {}
    std::optional<Text> find(int id) const override;

private:
    Journal& journal_;
};

} // namespace ornavel::rehearsal
