#include "base/file_error.h"

#include <algorithm>

namespace ornavel {

Place Places::of(std::size_t position) {
    position = std::min(position, text_.size());
    if (position < reached_) *this = Places(text_);
    for (; reached_ < position; ++reached_) {
        const bool pair =
            text_[reached_] == u'\r' && reached_ + 1 < text_.size() && text_[reached_ + 1] == u'\n';
        if (pair || (text_[reached_] != u'\n' && text_[reached_] != u'\r')) continue;
        ++line_;
        line_start_ = reached_ + 1;
    }
    return {line_, position - line_start_ + 1};
}

} // namespace ornavel
