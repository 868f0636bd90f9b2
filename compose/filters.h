#pragma once

#include "base/text.h"

#include <optional>

namespace ornavel::compose {

/// What a filter took out of a text, so that it can be put back.
struct Cut {
    std::size_t at;
    std::size_t size; ///< of what stands in its place
    Text taken;
};
/// The text as it was before the cut. Needs no memory where the text was only cut since.
void put_back(Text& text, const Cut& cut);

// body_tag.cpp

/// The first body tag loses its attributes: it becomes "<BODY>". A bare one at the very start of the text
/// stays, and so does one without an end.
std::optional<Cut> bare_body_tag(Text& text);

// style_block.cpp

/// Empties the first style block whose tag has no attributes. Gives back nothing where there is none.
std::optional<Cut> empty_style_block(Text& text);

// fonts.cpp

/// "face=" and "size=" become "xface=" and "xsize=". Throws TextTooLarge; the text then stays as it is.
void break_fonts(Text& text);

// images.cpp

/// The text without the images that carry "id=rid" or "alt=": they leave "<xIMG>". The others stay, and so do
/// those that were marked "<xxxIMG"; their tag comes out as "<IMG ". Throws TextTooLarge.
Text without_images(TextView text);

/// "IMG" in any case becomes "xMG".
void break_image_tags(Text& text);

// link_maker.cpp

/// The text with each address that begins with the prefix made a link. Throws TextTooLarge.
Text with_links(TextView text, TextView prefix);

// plain_lines.cpp

/// Each line of a plain text in a division and a span of its own. Throws TextTooLarge.
Text lines_as_divisions(TextView text);

/// Makes tabs blanks that HTML keeps. Throws TextTooLarge, and leaves the text as it was.
void replace_tabs(Text& text);

} // namespace ornavel::compose
