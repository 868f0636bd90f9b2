#pragma once

#include "settings/store.h"

namespace ornavel::bench {

// Bodies of a size in bytes, two to the unit. All are the same at every run.

/// A template's head, paragraphs as an editor writes them, and a signature with fields.
Text typical_body(std::size_t bytes);
/// The text repeated.
Text repeated(TextView piece, std::size_t bytes);
/// Paragraphs with an image of each kind in every few.
Text body_with_images(std::size_t bytes);
/// Plain text of distinct addresses.
Text distinct_addresses(std::size_t bytes);
/// A signature file with the usual fields.
Text signature();
/// The settings of a user without a telephone, a fax and a cell phone.
void fill_signature(settings::Store& store);

} // namespace ornavel::bench
