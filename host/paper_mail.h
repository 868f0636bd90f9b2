#pragma once

#include "host/application.h"

namespace ornavel::host {

/// A message as a mail client would hold it while it is being sent.
struct Letter {
    Text html_body, body, subject;
    int editor = html_editor;
    std::vector<Text> recipients;
    Text host_version = u"11.0.6353";
};

/// The message as an item, and a mail client of that version: what the composer asks of them, and nothing
/// else.
MailItem paper_item(const Letter& letter);
Application paper_application(const Letter& letter);

} // namespace ornavel::host
