#pragma once

#include "base/clock.h"
#include "base/files.h"
#include "base/message_box.h"
#include "compose/usage_log.h"
#include "diagnostics/error_reports.h"
#include "host/application.h"
#include "settings/store.h"

namespace ornavel::compose {

/// What the composer works with; all of it outlives the composer.
struct Services {
    settings::Store& settings;
    Files& files;
    const Clock& clock;
    MessageBoxes& boxes;
    host::Objects& objects;
    diagnostics::ErrorReports& errors;
    const host::Application& application; ///< may hold nothing
};

/// What the composer shares with those who call it.
struct Shared {
    host::MailItem item;                  ///< the item being sent
    bool signature_from_settings = false; ///< the name is the setting "Signature", not the form's choice
    Text form_signature;                  ///< the send-options form's signature list
    bool reply = false;                   ///< the item's body holds the reply marker
    Text reply_marker;                    ///< the text that marks a reply in this mail client
    Text reply_search_value = u"1";       ///< how far in front of the marker the new text ends, plus one
    Text reply_insert_value = u"1";       ///< how far behind the marker the quoted part begins, plus one
    Text application_path;                ///< the folder of scratch files and of the disclaimer
    bool script_check_suppressed =
        false;                     ///< composing for a preview: no script warning, no contact, no usage log
    bool template_refused = false; ///< the user did not want the template's script
    UsageLog usage_log;            ///< as read at start-up
};

/// Pours the user's text into an HTML template, adds the signature and fills the placeholder fields.
/// body: the text that the user wrote; changed in place by the steps before insertion. template_path: the
/// template's full path; replaced by the first template of the folder when there is no such file. Gives back
/// the finished HTML. A step that fails is written to the error log, the user is asked whether to mail the
/// report, and composition goes on with the text as it stood. Never throws.
Text CreateHTMLBody(Services services, Shared& shared, Text& body, Text& template_path) noexcept;

} // namespace ornavel::compose
