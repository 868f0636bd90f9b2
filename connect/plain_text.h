#pragma once

#include "connect/session.h"

namespace ornavel::connect {

/// A plain-text message as HTML, with the text signature and the administrator's disclaimer: at the end, or
/// on a reply in front of the marker.
Text plain_text_as_html(const Session& session, const Text& body);

} // namespace ornavel::connect
