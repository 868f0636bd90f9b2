#pragma once

#include "base/clock.h"
#include "base/files.h"
#include "base/message_box.h"
#include "compose/usage_log.h"
#include "diagnostics/error_reports.h"
#include "host/application.h"
#include "settings/store.h"

#include <functional>
#include <optional>

namespace ornavel::compose {

/// What was read once, when the mail client started.
struct StartUpValues {
    Text application_path; ///< the folder of scratch files and of the disclaimer
    Text browser_path;     ///< the folder of the preview's page; empty for the application path
    UsageLog usage_log;
};

/// What a step did to one of the texts that the composer works on. Lengths are in UTF-16 units.
struct StepChange {
    TextView step, text;
    std::size_t before, after;
};

/// What the composer works with; all of it outlives the composer.
struct Services {
    settings::Store& settings;
    Files& files;
    const Clock& clock;
    MessageBoxes& boxes;
    host::Objects& objects;
    diagnostics::ErrorReports& errors;
    const host::Application& application; ///< may hold nothing
    const StartUpValues& start_up;
    /// Told each step that changed one of the texts that it works on: the step, the text, and its length
    /// before and after; empty where nobody watches.
    std::function<void(const StepChange&)> on_change = {};
};

/// What is known of a message that answers another one.
struct Reply {
    bool found = false;    ///< the item's body holds the marker
    Text marker{};         ///< the text that marks a reply in this mail client
    int search_offset = 1; ///< how far in front of the marker the new text ends, plus one, in UTF-16 units
    int insert_offset = 1; ///< how far behind the marker the quoted part begins, plus one, in UTF-16 units
};

/// A preview asks nobody about the template's script, and leaves contacts and the usage log alone.
enum class Purpose { send, preview };

/// One message to compose.
struct Request {
    const host::MailItem& item; ///< the current item; it may be let go of while a question is open
    Text source;                ///< what the user wrote, with what the caller puts in front of it
    Text template_path; ///< the full path; the first template of the folder takes the place of one that is
                        ///< missing
    Reply reply{};
    std::optional<Text>
        form_signature{}; ///< a form's choice; where there is none, the setting "Signature" names it
    Purpose purpose = Purpose::send;
};

/// refused: the user did not want the template's script. failed: the user's text could not be put in.
enum class Outcome { composed, refused, failed };

struct Composed {
    Outcome outcome = Outcome::composed;
    Text html{}; ///< of a refused message the template as it was read, of a failed one nothing
};

/// Pours the user's text into an HTML template, adds the signature and fills the placeholder fields. A step
/// that fails is written to the error log, the user is asked whether to mail the report, and composition goes
/// on with the text as it stood. Never throws.
Composed CreateHTMLBody(const Services& services, Request request) noexcept;

/// Every trap of this room, those of the steps in their order; for those who watch which of them are sprung.
std::vector<TrapName> traps();

} // namespace ornavel::compose
