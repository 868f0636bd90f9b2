#pragma once

#include "base/text.h"

#include <iosfwd>

namespace ornavel::workbench {

/// One placeholder of templates and signatures.
struct FieldRow {
    Text field, source; ///< what it is filled with
    bool in_messages = false, in_signature_files = false;
    Text while_empty; ///< what an empty value leaves in a message
};

/// Every placeholder, out of the tables of the merges; what an empty value does is found by running them.
std::vector<FieldRow> field_rows();

void print_field_reference(std::ostream& stream, bool markdown);

} // namespace ornavel::workbench
