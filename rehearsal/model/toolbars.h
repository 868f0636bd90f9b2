#pragma once

#include "rehearsal/model/node.h"

namespace ornavel::rehearsal {

struct ButtonNode final : Node {
    const Class& what() const override;
    Text caption, tag, tool_tip;
    int face = 0, style = 0;
    bool visible = true, enabled = true, begins_group = false;
    bool temporary = false; ///< gone when the mail client ends, though nobody takes it away
};

/// A toolbar and its buttons.
struct BarNode final : Node {
    const Class& what() const override;
    std::vector<std::shared_ptr<ButtonNode>> buttons;
    std::shared_ptr<ButtonNode> find(TextView tag) const;
};

struct ControlsNode final : Node {
    explicit ControlsNode(std::shared_ptr<BarNode> owner) : bar(std::move(owner)) {}
    const Class& what() const override;
    std::shared_ptr<BarNode> bar;
};

/// The toolbars of a window; only the one named "Standard" is there, and null where the window has the
/// ribbon.
struct BarsNode final : Node {
    explicit BarsNode(std::shared_ptr<BarNode> standard_bar) : standard(std::move(standard_bar)) {}
    const Class& what() const override;
    std::shared_ptr<BarNode> standard;
};

} // namespace ornavel::rehearsal
