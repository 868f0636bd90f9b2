#pragma once

#include "base/text.h"

namespace ornavel {

/// Yes and No come with the question icon, a lone OK with the information icon. Enter presses the first
/// button, of a risky question No.
enum class Buttons { ok, yes_no, risky_yes_no };
enum class Answer { ok, yes, no };

/// The platform's message boxes. A box that is closed without a choice answers ok or no; one that can't be
/// shown throws Failure.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual Answer show(TextView title, TextView text, Buttons buttons) = 0;

    /// Whether the user chose Yes.
    bool ask(TextView title, TextView text) { return show(title, text, Buttons::yes_no) == Answer::yes; }
    /// The same for a question whose Yes may do harm.
    bool ask_risky(TextView title, TextView text) {
        return show(title, text, Buttons::risky_yes_no) == Answer::yes;
    }
    void inform(TextView title, TextView text) { show(title, text, Buttons::ok); }
};

} // namespace ornavel
