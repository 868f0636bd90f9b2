#pragma once

#include "base/encoding.h"
#include "forms/form.h"

#include <gtest/gtest.h>

#include <set>

namespace ornavel::forms {

/// Whether two controls cover a part of the window together.
inline bool overlap(const Bounds& one, const Bounds& other) {
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

/// The controls that a user sees: neither they nor the frame that they stand in are hidden.
inline std::vector<const Control*> seen_controls(const Form& form) {
    std::vector<const Control*> seen;
    for (const Control& control : form.controls()) {
        const Control* const frame = form.find(control.frame);
        if (control.visible && (!frame || frame->visible)) seen.push_back(&control);
    }
    return seen;
}

/// No control that is seen leaves the window or the frame that it stands in, and no two cover each other.
inline void expect_apart(const Form& form) {
    const auto seen = seen_controls(form);
    for (const Control* one : seen) {
        const Control* const frame = form.find(one->frame);
        const Size room = frame ? Size{frame->place.width, frame->place.height} : form.room();
        EXPECT_LE(one->place.left + one->place.width, room.width) << to_utf8(one->name);
        EXPECT_LE(one->place.top + one->place.height, room.height) << to_utf8(one->name);
        for (const Control* other : seen) {
            if (one == other || one->frame != other->frame) continue;
            EXPECT_FALSE(overlap(one->place, other->place)) << to_utf8(one->name + u", " + other->name);
        }
    }
}

/// The access keys of the controls that are seen, each of which may stand there once.
inline std::set<char16_t> unique_access_keys(const Form& form) {
    std::set<char16_t> keys;
    for (const Control* control : seen_controls(form)) {
        const auto key = access_key_of(*control);
        EXPECT_TRUE(!key || keys.insert(*key).second) << to_utf8(control->name);
    }
    return keys;
}

} // namespace ornavel::forms
