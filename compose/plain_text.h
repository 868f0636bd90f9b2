#pragma once

#include "compose/composer.h"

namespace ornavel::compose {

/// A plain-text message as HTML, with the text signature and the administrator's disclaimer: at the end, or
/// on a reply in front of the marker. Throws Failure when the disclaimer can't be read.
Text plain_text_as_html(const Services& services, const Text& body, TextView reply_marker);

} // namespace ornavel::compose
