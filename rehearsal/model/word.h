#pragma once

#include "rehearsal/model/items.h"

namespace ornavel::rehearsal {

/// The document of a message that is written in the word processor.
struct DocumentNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
};

struct RangeNode final : Node {
    const Class& what() const override;
};

struct WordApplicationNode final : PartOfItem {
    using PartOfItem::PartOfItem;
    const Class& what() const override;
};

} // namespace ornavel::rehearsal
