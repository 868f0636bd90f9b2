#pragma once

#include "base/files.h"

namespace ornavel::compose {

/// The file through which the text of Word's document comes.
Text word_file(TextView application_path);

/// Removes that file, and the folder of pictures that Office puts beside it. What the editor still holds
/// stays for the next time. Never throws.
void remove_word_file(Files& files, TextView application_path) noexcept;

} // namespace ornavel::compose
