#pragma once

#include "base/text.h"

#include <utility>
#include <vector>

namespace ornavel::rehearsal {

struct XmlElement {
    Text name;
    std::vector<std::pair<Text, Text>> attributes;
    std::vector<XmlElement> children;

    /// Null where the element has no such attribute.
    const Text* find(TextView attribute) const;
};

/// Reads a document that has elements and attributes alone: no text between them, no comments, no prefixes.
/// Throws Failure for anything else, and for what isn't well formed; it names the place, counted from 1.
XmlElement parse_xml(TextView text);

} // namespace ornavel::rehearsal
