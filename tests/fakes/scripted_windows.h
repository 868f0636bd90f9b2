#pragma once

#include "forms/form_user.h"
#include "forms/windows.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace ornavel {

/// A screen in front of which a scripted user sits: what it does is called for every form that appears. A
/// form that is still open afterwards is closed by its frame; message boxes are closed without a choice.
class ScriptedWindows final : public forms::Windows {
public:
    explicit ScriptedWindows(std::function<void(forms::Form&, forms::FormUser)> script = {})
        : script_(std::move(script)) {}

    Answer show(TextView title, TextView text, Buttons buttons) override {
        boxes.push_back(Text(title) + u": " + Text(text));
        if (buttons == Buttons::ok) return Answer::ok;
        return yes && yes(text) ? Answer::yes : Answer::no;
    }

    void show_modal(forms::Form& form) override {
        form.load();
        ++forms_shown;
        if (script_ && form.is_loaded()) script_(form, forms::FormUser(form));
        form.unload();
    }

    std::optional<Text> ask_for_path(const forms::PathQuestion& question) override {
        questions.push_back(question.title);
        last_question = question;
        return path;
    }

    void while_user_waits(const std::function<void()>& body) override {
        user_waits = true;
        body();
        user_waits = false;
    }

    int forms_shown = 0;
    bool user_waits = false;           ///< and sees so
    std::vector<Text> boxes;           ///< title and text of each message box
    std::function<bool(TextView)> yes; ///< which questions are answered so, by their text
    std::vector<Text> questions;       ///< titles of the file dialogs
    forms::PathQuestion last_question; ///< of these dialogs
    std::optional<Text> path;          ///< the answer to all of them

private:
    std::function<void(forms::Form&, forms::FormUser)> script_;
};

} // namespace ornavel
