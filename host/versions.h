#pragma once

#include "host/application.h"

namespace ornavel::host {

/// The number that a version begins with, of one or two digits: 9 is Outlook 2000, 16 is Outlook 2016 and
/// every later one. 0 where the version is empty or begins otherwise.
int major_version(TextView version);
/// 0 as well where the mail client doesn't tell its version.
int major_version(const Application& application) noexcept;

// What versions differ in, each with the page of Microsoft's documentation that says so.

/// Inspector.EditorType: from 2007 on Word is the only editor, and the property always says so.
inline constexpr int first_with_word_alone = 12;

/// Inspector.CommandBars: from 2007 on the window of a message has the ribbon; what is put on its command
/// bars lands on a tab of its own.
inline constexpr int first_with_ribbon_in_message_windows = 12;

/// Explorer.CommandBars: in 2007 the explorers have toolbars as before; from 2010 on these are deprecated,
/// and the explorers have the ribbon.
inline constexpr int first_with_ribbon_in_explorers = 14;

/// CSIDL_APPDATA: 2007 is the first version for a Windows that keeps the data of the user's programs
/// elsewhere than below "Documents and Settings".
inline constexpr int first_with_signatures_below_application_data = 12;

/// Software\Microsoft\Office: each version keeps its settings below a key of its own number.
inline constexpr int first_with_mail_settings_of_its_own = 12;

/// What kind of message an item is: plain_text_editor, html_editor or rich_text_editor, and up to 2003
/// whatever else Inspector.EditorType says. From 2007 on MailItem.BodyFormat decides, which has the same
/// numbers; one that can't be read or is another number is HTML's. Throws Error up to 2003 alone.
int kind_of(const MailItem& item, const Application& application);

} // namespace ornavel::host
