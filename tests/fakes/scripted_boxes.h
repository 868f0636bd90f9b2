#pragma once

#include "base/errors.h"
#include "base/message_box.h"

#include <map>
#include <vector>

namespace ornavel {

/// Message boxes in front of a scripted user: one whose title is in `agreed` is answered Yes, any other No.
class ScriptedBoxes final : public MessageBoxes {
public:
    struct Box {
        Text title, text;
    };
    std::map<Text, bool> agreed;
    std::vector<Box> shown;
    Text broken; ///< the title of a box that the system can't show

    Answer show(TextView title, TextView text, Buttons buttons) override {
        if (!broken.empty() && title == broken) throw Failure(u"no window");
        shown.push_back({Text(title), Text(text)});
        if (buttons == Buttons::ok) return Answer::ok;
        return agreed.count(Text(title)) != 0 ? Answer::yes : Answer::no;
    }
};

} // namespace ornavel
