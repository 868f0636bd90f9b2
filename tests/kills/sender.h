#pragma once

#include "programs/mass_mailer/journal.h"
#include "tests/kills/mail_server.h"
#include "tests/kills/program_window.h"
#include "tests/mass_mailer/fake_mail_client.h"
#include "win32/windows_files.h"

namespace ornavel::kills {

/// What the real Send to Many is started with: a list of people, a composed message, and a mail client that
/// it sends through.
class Sender {
public:
    /// program: the full path of MassMailer.exe.
    Sender(Text program, int people);

    static Text address(int person) { return u"p" + to_text(person) + u"@example.com"; }
    /// The journal of a run over the list, as it is now.
    mass_mailer::Journal journal();

    /// Starts the program.
    ProgramWindow window() const { return {program_, u"frmMassMailer"}; }
    /// Opens the list in its window and sets the pace, in messages a minute.
    void open_list(const ProgramWindow& window, int pace) const;

    mass_mailer::FakeMailClient client;

private:
    Text program_;
    int people_;
    win32::WindowsFiles files_;
    MailServer server_{client};
};

} // namespace ornavel::kills
