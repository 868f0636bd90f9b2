#pragma once

#include <string>
#include <string_view>

namespace ornavel::rehearsal::report {

/// Text for HTML content and for quoted attributes: nothing in it can open a tag, a reference or end a quote.
std::string escape(std::string_view text);

/// An element with ready-made HTML inside. The class may be empty.
std::string element(std::string_view tag, std::string_view css_class, std::string_view inside);

/// An element whose content is text.
std::string text_element(std::string_view tag, std::string_view css_class, std::string_view text);

/// A fold-out that starts closed.
std::string fold_out(std::string_view summary, std::string_view inside);

} // namespace ornavel::rehearsal::report
