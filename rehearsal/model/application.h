#pragma once

#include "rehearsal/model/node.h"

namespace ornavel::rehearsal {

struct RecipientNode;

struct ApplicationNode final : Node {
    const Class& what() const override;
};

/// The windows that show folders, as a collection that tells of new ones.
struct ExplorersNode final : Node {
    const Class& what() const override;
};

/// The windows of items, as a collection that tells of new ones.
struct InspectorsNode final : Node {
    const Class& what() const override;
};

/// A window that shows folders. It keeps its number for the whole rehearsal.
struct ExplorerNode final : Node {
    const Class& what() const override;
};

/// The MAPI name space.
struct NameSpaceNode final : Node {
    const Class& what() const override;
};

/// The pages that a request of the Options dialog collects.
struct PropertyPagesNode final : Node {
    const Class& what() const override;
};

/// The add-in's own options page: only ever handed on.
struct OptionsPageNode final : Node {
    const Class& what() const override;
};

/// A database connection: opened, used and closed on paper.
struct ConnectionNode final : Node {
    const Class& what() const override;
    Text opened_with;
    bool is_open = false, closed = false;
};

} // namespace ornavel::rehearsal
