#pragma once

#include "compose/composer.h"

namespace ornavel::compose {

/// A plain-text message as HTML, with the text signature and the administrator's disclaimer: at the end,
/// behind the font that the text is wrapped in, or on a reply in front of the marker, inside it. Throws
/// Failure when the disclaimer can't be read.
Text plain_text_as_html(const Services& services, const Text& body, TextView reply_marker);

} // namespace ornavel::compose
