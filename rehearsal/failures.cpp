#include "rehearsal/failures.h"

#include "host/value.h"

namespace ornavel::rehearsal {

Failures::Failures(std::vector<Failing> entries) {
    for (auto& entry : entries) entries_.push_back({std::move(entry)});
}

void Failures::use(Failing::Kind kind, TextView subject) {
    const Failing* failing = nullptr;
    for (auto& [entry, uses] : entries_) {
        if (entry.kind != kind || !same_name(entry.subject, subject)) continue;
        ++uses;
        if (!failing && (entry.use == 0 || entry.use == uses)) failing = &entry;
    }
    if (!failing) return;
    if (kind == Failing::Kind::member) throw host::Error(failing->says);
    throw Failure(failing->says);
}

} // namespace ornavel::rehearsal
