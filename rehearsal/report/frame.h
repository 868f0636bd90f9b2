#pragma once

#include "rehearsal/scenario.h"

namespace ornavel::rehearsal::report {

/// About as high as a message is, in pixels, until the page has measured it.
int estimated_height(const std::string& html);

/// A frame that shows a message as a reader would see it: pictures among the scenario's files are put in
/// place, scripts do not run, and nothing that the message names can reach the network.
std::string message_frame(const std::string& title, const std::string& html, const Named<std::string>& files,
                          int height);

/// The same for a message without HTML.
std::string plain_text_frame(const std::string& title, const std::string& text, int height);

} // namespace ornavel::rehearsal::report
