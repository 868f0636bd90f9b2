#include "win32/key_watch.h"

namespace ornavel::win32 {

KeyWatch::KeyWatch(TextView path)
    : path_(path), event_(CreateEventW(nullptr, FALSE, FALSE, nullptr)), last_look_(GetTickCount()) {}

bool KeyWatch::has_something_changed() {
    const DWORD now = GetTickCount();
    if (now == std::exchange(last_look_, now)) return false;
    if (watching_ && WaitForSingleObject(event_.get(), 0) == WAIT_TIMEOUT) return false;
    watching_ = watch();
    return true;
}

/// The system tells one change, and must then be asked again.
bool KeyWatch::watch() {
    if (!event_) return false;
    if (!key_ || !key_->tell_changes_of_names(event_.get())) {
        key_ = RegistryKey::open(path_);
        return key_ && key_->tell_changes_of_names(event_.get());
    }
    return true;
}

} // namespace ornavel::win32
