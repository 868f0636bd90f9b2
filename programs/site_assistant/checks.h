#pragma once

#include "base/files.h"
#include "forms/form.h"

namespace ornavel::programs {

/// Why a page can't be left, and the control that it is about.
struct Problem {
    TextView control;
    Text sentence;
};

/// What stops the page with this frame; nothing where it may be left.
std::optional<Problem> refusal_of(forms::Form& form, TextView page, const Files& files);

/// What the user should know before leaving the page, in a sentence each; empty for nothing.
struct Warning {
    Text short_form; ///< with long names cut off
    Text whole;

    void add(TextView sentence);
    /// A sentence about a file, with words in front of its name and behind it.
    void add(TextView before, TextView path, TextView behind);
};

Warning warning_of(forms::Form& form, TextView page, const Files& files);

/// A folder's name without backslashes at its end.
TextView without_end(TextView folder);

/// The template that messages get: the one chosen, or the first of the folder; nothing where it has none.
std::optional<Text> template_in_use(const Files& files, TextView folder, TextView name);

/// The pictures of an HTML text that lie on a drive of this machine, as paths.
std::vector<Text> local_pictures(TextView html);

} // namespace ornavel::programs
