#pragma once

#include "base/text.h"

namespace ornavel::compose {

/// The first body tag loses its attributes: it becomes "<BODY>". A bare one at the very start of the text
/// stays, and so does one without an end.
void bare_body_tag(Text& text);

/// Empties the first style block whose tag has no attributes. Gives back whether there was one.
bool empty_style_block(Text& text);

/// The text without the images that carry "id=rid" or "alt=": they leave "<xIMG>". The others stay, and so do
/// those that were marked "<xxxIMG"; their tag comes out as "<IMG ". Throws TextTooLarge.
Text without_images(TextView text);

/// The text with each address that begins with the prefix made a link. Throws TextTooLarge.
Text with_links(TextView text, TextView prefix);

/// Each line of a plain text in a division and a span of its own. Throws TextTooLarge.
Text lines_as_divisions(TextView text);

/// Tabs as blanks that HTML keeps. Throws TextTooLarge.
Text without_tabs(TextView text);

/// "IMG" in any case becomes "xMG".
void break_image_tags(Text& text);

} // namespace ornavel::compose
