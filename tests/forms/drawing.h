#pragma once

#include "rehearsal/form_record.h"
#include "tests/as_written.h"

namespace ornavel::forms {

/// A form as it was laid out, in words: a line for itself and one for each control that stands in no hidden
/// frame, in twips.
class Drawing {
public:
    explicit Drawing(const Form& form) {
        const Control& own = form.properties;
        describe(own);
        words_ << " room " << form.room().width << "x" << form.room().height;
        tell("topmost", form.topmost);
        tell("sizable", form.sizable);
        tell("centred", form.centred);
        tell("keeps size", form.keeps_size);
        if (form.least_room != Size())
            words_ << " least room " << form.least_room.width << "x" << form.least_room.height;
        words_ << "\n";
        for (const Control& control : form.controls()) {
            const Control* const frame = form.find(control.frame);
            if (frame && !frame->visible) continue;
            describe(control);
            words_ << "\n";
        }
    }
    std::string words() const { return words_.str(); }

private:
    void describe(const Control& control) {
        const Bounds& place = control.place;
        words_ << rehearsal::kind_name(control.kind) << " " << to_utf8(control.name) << " " << place.left
               << "," << place.top << " " << place.width << "x" << place.height;
        tell("in", control.frame);
        tell("caption", control.caption);
        tell("text", control.text);
        tell("tip", control.tool_tip);
        tell("tag", control.tag);
        tell("page", control.page);
        tell("picture", control.picture);
        for (const Text& item : control.items) tell("item", item);
        if (control.index >= 0) words_ << " chosen " << control.index;
        if (control.icon != Icon::none) words_ << " icon " << static_cast<int>(control.icon);
        for (const Part& part : control.parts) {
            tell("part", part.tag);
            tell("caption", part.caption);
            tell("tip", part.tool_tip);
            tell("text", part.text);
        }
        tell("hidden", !control.visible);
        tell("grey", !control.enabled);
        tell("ticked", control.ticked);
        tell("fixed", control.fixed_entries);
        tell("follows links", control.follows_links);
        tell("locked", control.locked);
        tell("lines", control.several_lines);
        tell("default", control.is_default);
        tell("cancel", control.is_cancel);
    }
    void tell(const char* what, bool is_so) {
        if (is_so) words_ << " " << what;
    }
    void tell(const char* what, const Text& text) {
        if (!text.empty()) words_ << " " << what << " \"" << to_utf8(text) << "\"";
    }

    std::ostringstream words_;
};

/// Compares a form with the drawing of this name in tests/forms/drawings.
inline void expect_drawn(const Form& form, const std::string& name) {
    expect_as_written(Drawing(form).words(), "forms/drawings/" + name + ".txt");
}

} // namespace ornavel::forms
