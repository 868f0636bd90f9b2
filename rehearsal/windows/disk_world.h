#pragma once

#include "rehearsal/machine.h"

namespace ornavel::rehearsal {

/// Drive C without the folder of Windows. What stood there when the first rehearsal began is its own and
/// stays; everything later is the rehearsals', and goes with each.
class DiskWorld {
public:
    DiskWorld();

    /// Removes what rehearsals have left behind.
    void clear() const;
    /// Removes a folder with everything in it. Throws Failure where that can't be done.
    void remove_folder(TextView path) const;
    /// Files that nobody has touched since the beginning are there with their size and time in place of
    /// their bytes.
    void add_to(Snapshot& snapshot) const;

private:
    ByName<std::string> own_files_;
    std::set<Text, NameOrder> own_folders_;
};

} // namespace ornavel::rehearsal
