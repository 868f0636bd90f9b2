#pragma once

#include "rehearsal/scripted_user.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// The scripted user at the screen: answers the message boxes of this thread as they appear, and writes down
/// what they looked like. There is one at a time.
class BoxUser {
public:
    explicit BoxUser(ScriptedUser& user);
    ~BoxUser();
    BoxUser(const BoxUser&) = delete;
    BoxUser& operator=(const BoxUser&) = delete;

    void look();
    const Json& windows() const { return windows_; }

private:
    void answer(HWND box);

    ScriptedUser& user_;
    UINT_PTR timer_;
    HWND answered_ = nullptr;
    Json windows_ = Json::array();
};

} // namespace ornavel::rehearsal
