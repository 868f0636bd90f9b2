#pragma once

#include "base/errors.h"
#include "base/launcher.h"

#include <vector>

namespace ornavel {

/// Programs that are started on paper.
class RecordingLauncher final : public Launcher {
public:
    bool fails = false;
    std::vector<Text> programs;

    void launch(TextView program, TextView, WindowState) override {
        if (fails) throw Failure(u"rehearsed failure");
        programs.emplace_back(program);
    }
    Progress run_windows_program(TextView name, TextView arguments, WindowState window, int) override {
        launch(name, arguments, window);
        return Progress::ended;
    }
};

} // namespace ornavel
