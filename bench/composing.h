#pragma once

#include "compose/composer.h"
#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/prepared_objects.h"
#include "tests/fakes/recording_object.h"
#include "tests/fakes/recording_reports.h"
#include "tests/fakes/scripted_boxes.h"

namespace ornavel::bench {

/// A composer of replies with every step and filter on, and everything around it in memory.
class ReplyComposer {
public:
    ReplyComposer();
    /// Composes; aborts when a step failed.
    void compose(Text body);
    std::size_t result_bytes() const { return result_.size() * sizeof(char16_t); }
    void forget() { Text().swap(result_); }

private:
    settings::MemoryStore store_;
    MemoryFiles files_;
    FixedClock clock_;
    ScriptedBoxes boxes_;
    PreparedObjects objects_;
    RecordingReports reports_;
    std::vector<Text> journal_;
    std::shared_ptr<RecordingObject> item_;
    host::Application application_;
    compose::StartUpValues start_up_;
    Text result_;
};

} // namespace ornavel::bench
