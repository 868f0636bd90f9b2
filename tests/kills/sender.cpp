#include "tests/kills/sender.h"

#include "win32/registry_store.h"

namespace ornavel::kills {
namespace {

constexpr TextView folder = u"C:\\kills", list_path = u"C:\\kills\\list.csv";
constexpr TextView subject = u"Hello {{Name}}", page = u"<p>Dear {{Name}}</p>";

Text list_of(int people) {
    Text list = u"Name,Mail\r\n";
    for (int i = 0; i < people; ++i) list += u"N" + to_text(i) + u"," + Sender::address(i) + u"\r\n";
    return list;
}

} // namespace

Sender::Sender(Text program, int people) : program_(std::move(program)), people_(people) {
    if (files_.folder_exists(folder)) files_.remove_folder(folder);
    files_.create_folder(folder);
    files_.write(list_path, to_utf8(list_of(people)));
    files_.write(Text(folder) + u"\\myTestHtmlFile.html", to_utf8(page));
    win32::RegistryStore settings;
    save(settings, settings::admin::SendToManySubject, subject);
    save(settings, settings::admin::BrowserPath, folder);
}

mass_mailer::Journal Sender::journal() {
    return {files_, mass_mailer::journal_stems(list_path, {}),
            mass_mailer::hash_of(subject, page, list_of(people_), 1)};
}

void Sender::open_list(const ProgramWindow& window, int pace) const {
    window.type(u"txtPace", to_text(pace));
    window.type(u"txtList", list_path);
    pump_until([&] { return window.entries_of(u"lstPeople") == people_; }, u"the list");
}

} // namespace ornavel::kills
