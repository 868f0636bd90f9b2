#pragma once

#include "base/text.h"

namespace ornavel {

/// Yes and No come with the question icon, a lone OK with the information icon.
enum class Buttons { ok, yes_no };
enum class Answer { ok, yes, no };

/// The platform's message boxes. A box that is closed without a choice answers ok or no.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual Answer show(TextView title, TextView text, Buttons buttons) = 0;

    /// Whether the user chose Yes.
    bool ask(TextView title, TextView text) { return show(title, text, Buttons::yes_no) == Answer::yes; }
    void inform(TextView title, TextView text) { show(title, text, Buttons::ok); }
};

} // namespace ornavel
