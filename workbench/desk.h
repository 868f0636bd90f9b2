#pragma once

#include "base/clock.h"
#include "base/files.h"
#include "compose/composer.h"
#include "host/paper_mail.h"
#include "settings/store.h"

#include <memory>

namespace ornavel::workbench {

/// What became of a message at the desk.
struct Dressed {
    compose::Outcome outcome = compose::Outcome::composed;
    Text html;
    bool is_reply = false;
    bool left_as_is = false; ///< "Reply as is" lets the reply go as it was written
    bool asked_about_script = false;
    std::vector<Text> notes; ///< boxes that a user would have seen, and lines of the error log
    struct Change {
        Text step, text;
        std::size_t before, after; ///< in UTF-16 units
    };
    std::vector<Change> changes;
};

/// A message to dress: the letter, and what a preview would put in front of it.
struct Order {
    host::Letter letter;
    std::optional<Text> boilerplate{}; ///< the path of a text file
    bool accept_script = true;         ///< the answer to the question about the template's script
    bool watched = false;              ///< whether the steps' changes are wanted
};

/// A composer with settings and files that are only read; what it would write stays in memory.
class Desk {
public:
    Desk(const settings::MemoryStore& settings, const Files& files, const Clock& clock,
         bool accept_script = true);
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    const compose::Services& services() const;
    /// Composes the letter and gives back what became of it.
    Dressed dress(const Order& order);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

/// Composes the message as a send in the mode "auto" does, with the add-in's own code: the next quote, the
/// reply test, the composer. Settings and files are only read; what would be written stays in memory.
Dressed dress(const settings::MemoryStore& settings, const Files& files, const Clock& clock,
              const Order& order);

} // namespace ornavel::workbench
