#pragma once

#include "base/encoding.h"
#include "forms/form_user.h"
#include "programs/options_assistant/frmOptionsAssistant.h"
#include "tests/forms/overlap.h"
#include "tests/programs/program_stage.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace ornavel::programs {

/// The window of Ornavel Options, and somebody in front of it.
class Options : public ::testing::Test {
protected:
    frmOptionsAssistant& options() {
        if (options_) return *options_;
        options_ = std::make_unique<frmOptionsAssistant>(stage.platform);
        options_->form().load();
        return *options_;
    }
    forms::Form& form() { return options().form(); }
    forms::FormUser user() { return forms::FormUser(form()); }
    void choose(TextView name) {
        user().set_text(u"txtSearch", name);
        const auto& lines = form()[u"lstSettings"].items;
        const auto line = std::ranges::find_if(
            lines, [&](const Text& each) { return contains(each, u" " + Text(name) + u" = "); });
        ASSERT_NE(line, lines.end()) << to_utf8(name);
        user().select(u"lstSettings", static_cast<int>(line - lines.begin()));
    }
    void type(const settings::Key& key, TextView value) {
        choose(key.name);
        user().set_text(u"txtValue", value);
    }
    /// Asks for the import of a file with these bytes.
    void open_import(std::string bytes) {
        stage.files.contents[u"C:\\in.reg"] = std::move(bytes);
        stage.windows.path = u"C:\\in.reg";
        user().click(u"cmdImport");
    }
    const std::vector<Text>& import_lines() { return form()[u"lstImport"].items; }
    /// The button is pressed, and the file dialog answered by the path.
    std::string written_by(TextView button, TextView path) {
        stage.windows.path = path;
        user().click(button);
        return written(path);
    }
    /// The buttons that Enter or Escape presses.
    Text pressed_by(bool forms::Control::*key) {
        Text names;
        for (const forms::Control* control : forms::seen_controls(form()))
            if (control->enabled && control->*key) names += control->name;
        return names;
    }
    std::optional<Text> stored(const settings::Key& key) { return stage.stored(key); }
    Text last_box() { return stage.windows.boxes.empty() ? Text() : stage.windows.boxes.back(); }
    std::string written(TextView path) { return stage.files.contents.at(Text(path)); }
    static bool has(const std::string& bytes, const char* part) {
        return bytes.find(part) != std::string::npos;
    }

    ProgramStage stage;

private:
    std::unique_ptr<frmOptionsAssistant> options_;
};

} // namespace ornavel::programs
