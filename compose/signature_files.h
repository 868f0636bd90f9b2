#pragma once

#include "base/files.h"
#include "compose/merge.h"
#include "diagnostics/error_reports.h"

#include <functional>

namespace ornavel::compose {

inline constexpr TrapName signature_folder_trap{u"write_signature_files", u"SignatureFolder_Err"};
inline constexpr TrapName one_signature_trap{u"write_signature_files", u"SignatureFile_Err"};
inline constexpr TrapName text_signature_trap{u"write_signature_files", u"TextSignature_Err"};

/// Writes the mail client's own signatures: from each HTML and each rich-text file in the folder of
/// signatures one of the same kind, and a plain-text one from the settings alone. What was there before is
/// replaced, file by file and each as a whole; one that can't be written is logged, and the others go on. The
/// user is asked about the first error only. host_folder gives the folder of the mail client's signatures; it
/// is asked where no setting names another.
void write_signature_files(const settings::Store& settings, Files& files,
                           const std::function<Text()>& host_folder,
                           diagnostics::ErrorReports& errors) noexcept;

/// The plain-text signature: two columns, of which the left one is 45 units wide; each line ends in CR LF.
Text two_column_signature(const settings::Store& settings);

/// Puts the user's words in place of "Cell:", "Fax:" and "Telephone:", or takes them out where the number is
/// missing.
Text with_phone_labels(Text signature, const settings::Store& settings);

/// The bytes of a rich-text file: what the code page lacks stands as "\uN?".
std::string encode_rich_text(TextView text, const CodePage& ansi);

} // namespace ornavel::compose
