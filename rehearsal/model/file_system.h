#pragma once

#include "rehearsal/model/node.h"

namespace ornavel::rehearsal {

/// The scripting host's way to the machine's disk.
struct FileSystemNode final : Node {
    const Class& what() const override;
};

/// A file that the scripting host has found.
struct FileNode final : Node {
    explicit FileNode(Text file) : path(std::move(file)) {}
    const Class& what() const override;
    Text path;
};

} // namespace ornavel::rehearsal
