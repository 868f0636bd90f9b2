#include "compose/dates.h"
#include "compose/insertions.h"
#include "tests/compose/composing.h"

#include <cmath>

namespace ornavel::compose {
namespace {

using namespace settings;

class Fields : public Composing {
protected:
    Fields() {
        host_application->values[u"GetNamespace"] = as(mapi);
        mapi->values[u"CurrentUser"] = as(user_);
        user_->values[u"Address"] = Text(u"jo@example.com");
        user_->values[u"Name"] = Text(u"Jo Sender");
        objects.prepared[u"ADODB.Connection"] = connection;
        start_up.usage_log = {true, u"dsn=log", u"sent", u"Address", {}};
        set(user::Template, u"letter.htm");
    }

    void link_contact() {
        links->values[u"Count"] = std::int32_t{2};
        links->values[u"Item"] = as(link);
        link->values[u"Item"] = as(contact);
        contact->values = {{u"FullName", Text(u"Ann Lee")},
                           {u"CompanyName", Text(u"Lee Ltd")},
                           {u"EntryID", Text(u"E1")},
                           {u"Parent", as(folder)},
                           {u"Body", Text(u"before")}};
        folder->values = {{u"Name", Text(u"Contacts")}, {u"EntryID", Text(u"F1")}};
        set(admin::Marketing, u"Enterprise");
    }

    Text statement(TextView address, TextView bulk) const {
        return u"connection.Execute insert into sent (Emailaddress, [date], template, bulkmail, "
               u"program_used, sender) "
               u"values ('" +
               Text(address) + u"', '11/20/2003 2:05:09 PM', 'letter.htm', " + Text(bulk) +
               u", 'Ornavel', 'jo@example.com');";
    }

    std::vector<Text> database_calls() const {
        std::vector<Text> calls;
        for (const Text& line : journal)
            if (line.starts_with(u"connection.")) calls.push_back(line);
        return calls;
    }

    Recorder user_ = recorder(u"user"), connection = recorder(u"connection"), link = recorder(u"link"),
             contact = recorder(u"contact"), folder = recorder(u"folder");
    const Text every_field = u"[#ContactName#]|[#ContactCompanyName#]|[#ContactFolder#]|[#ContactID#]|"
                             u"[#ContactFolderID#]|[#SigEmail#]";
};

TEST_F(Fields, ALinkedContactFillsItsFieldsAndGetsANote) {
    link_contact();
    set(admin::SigEmail, u"jo@example.com");
    EXPECT_EQ(compose(every_field), u"[Ann Lee|Lee Ltd|Contacts|E1|F1|jo@example.com]\r\n");
    EXPECT_EQ(journal[journal.size() - 2], u"contact.Body = [Nov-20-03 02:05 PM] Subject: body\r\nbefore");
    EXPECT_EQ(journal.back(), u"contact.Close 0");
    EXPECT_TRUE(database_calls().empty());
}

TEST_F(Fields, NotesCanBeSwitchedOff) {
    link_contact();
    set(user::LogContactNotes, u"False");
    compose(every_field);
    for (const Text& line : journal) EXPECT_FALSE(line.starts_with(u"contact.")) << "a note was written";
}

TEST_F(Fields, ALongNoteIsCutByTheSubjectsLengthToo) {
    link_contact();
    for (const auto& [length, kept] : {std::pair{77U, 77U}, {78U, 0U}, {100U, 22U}}) {
        const Text first = u"a" + Text(length - 3, u'x');
        item->values[u"Body"] = first + u"\r\ny";
        compose(u"");
        const Text noted = (first + u" y").substr(0, kept);
        EXPECT_EQ(journal[journal.size() - 2],
                  u"contact.Body = [Nov-20-03 02:05 PM] Subject: " + noted + u"\r\nbefore");
    }
}

TEST_F(Fields, WithoutALinkTheSubjectAndTheTextStandIn) {
    set(admin::Marketing, u"Enterprise");
    const Text body = Text(60, u'b') + every_field;
    EXPECT_EQ(compose(body), u"[" + Text(60, u'b') + u"Subject|" + Text(50, u'b') +
                                 u"|Mail not created from a contact item|||]\r\n");
}

TEST_F(Fields, InAReplyTheTextThatStandsInIsItsNewOne) {
    set(admin::Marketing, u"Enterprise");
    reply = {.found = true, .marker = u"-----Original"};
    const Text html = compose(Text(60, u'b') + every_field + u"-----Original");
    EXPECT_TRUE(contains(html, u"Subject|" + Text(50, u'b') + u"|Mail not created")) << to_utf8(html);
}

TEST_F(Fields, WithoutEnterpriseOrInAPreviewTheContactFieldsStay) {
    EXPECT_EQ(compose(u"[#ContactName#]"), u"[[#ContactName#]]\r\n");
    set(admin::Marketing, u"Enterprise");
    purpose = Purpose::preview;
    journal.clear();
    EXPECT_EQ(compose(u"[#ContactName#][#Address#]"), u"[[#ContactName#][#Address#]]\r\n");
    EXPECT_TRUE(journal.empty());
}

TEST_F(Fields, AContactThatFailsIsLoggedAndCompositionGoesOn) {
    link_contact();
    contact->failing.insert(u"FullName");
    EXPECT_EQ(compose(u"[#ContactName#]"), u"[[#ContactName#]]\r\n");
    expect_error(u"CreateHTMLBody", u"CreateHTM_Err");
}

TEST_F(Fields, EveryRecipientPlaceholderIsFilledOnce) {
    recipient->values[u"Address"] = Text(u"[#Address#]");
    EXPECT_EQ(compose(u"[#Address#] [#Address#]"), u"[[#Address#] [#Address#]]\r\n");
}

TEST_F(Fields, OneRecipientIsOneRow) {
    compose(u"x");
    EXPECT_EQ(database_calls(),
              (std::vector<Text>{u"connection.Open dsn=log", statement(u"ann@example.com", u"0"),
                                 u"connection.Close"}));
}

TEST_F(Fields, SeveralRecipientsAreARowEach) {
    recipients->values[u"Count"] = std::int32_t{2};
    compose(u"x");
    const Text row = statement(u"ann@example.com", u"1");
    EXPECT_EQ(database_calls(),
              (std::vector<Text>{u"connection.Open dsn=log", row, row, u"connection.Close"}));
}

TEST_F(Fields, WithoutAConnectionStringNoRowIsWritten) {
    start_up.usage_log.connection_string.clear();
    EXPECT_EQ(compose(u"[#Address#]"), u"[ann@example.com]\r\n");
    EXPECT_TRUE(database_calls().empty());
}

TEST_F(Fields, ValuesGoIntoTheStatementAsTheyStand) {
    set(user::Template, u"o'letter.htm");
    connection->failing.insert(u"Execute");
    EXPECT_EQ(compose(u"x"), u"[x]\r\n");
    expect_error(u"CreateHTMLBody- eMarketing error", u"eMarketing_Err");
    EXPECT_EQ(database_calls().back(), u"connection.Close");
}

TEST_F(Fields, ADatabaseThatRefusesEndsTheStepOnly) {
    connection->failing.insert(u"Open");
    EXPECT_EQ(compose(u"[#Address#]"), u"[ann@example.com]\r\n");
    expect_error(u"CreateHTMLBody- eMarketing error", u"eMarketing_Err");
}

TEST_F(Fields, ASenderWithoutAnAddressIsNamed) {
    user_->values[u"Address"] = Text(u"/o=Exchange/cn=jo");
    EXPECT_EQ(sender_of(application), u"Jo Sender");
}

struct MarketingCase {
    TextView setting;
    bool enabled;
    TextView connection_string, table, recipient_field;
};

TEST(UsageLog, IsConfiguredByOneSetting) {
    const MarketingCase cases[] = {
        {u"", false, u"", u"", u""},
        {u"Enterprise", false, u"", u"", u""},
        {u"Log|OFF#Db|dsn#T|t#F|f", false, u"", u"", u""},
        {u"Log|on#Db|dsn#T|t#F|f", false, u"", u"", u""},
        {u"Log|ON#Db|dsn=a;b=c#Table|t#Field|f|rest", true, u"dsn=a;b=c", u"t", u"f"},
        {u"ON#dsn#t#f", true, u"dsn", u"t", u"f"},
        {u"ON", true, u"", u"", u""},
    };
    for (const MarketingCase& c : cases) {
        MemoryStore store;
        save(store, admin::Marketing, c.setting);
        save(store, admin::StoredProcName, u"proc");
        const UsageLog log = Get_Marketing_Info(store);
        EXPECT_EQ(log.enabled, c.enabled);
        EXPECT_EQ(log.connection_string, c.connection_string);
        EXPECT_EQ(log.table, c.table);
        EXPECT_EQ(log.recipient_field, c.recipient_field);
        EXPECT_EQ(log.stored_procedure, c.setting.empty() ? u"" : u"proc");
    }
}

TEST(Dates, NamesHaveTheirNumbers) {
    const TextView days[] = {u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                             u"Thursday", u"Friday", u"Saturday"};
    const TextView months[] = {u"January", u"February", u"March",     u"April",   u"May",      u"June",
                               u"July",    u"August",   u"September", u"October", u"November", u"December"};
    for (int number = 0; const TextView day : days) EXPECT_EQ(day_name(++number), day);
    for (int number = 0; const TextView month : months) EXPECT_EQ(month_name(++number), month);
    for (const int outside : {-1, 0, 8}) EXPECT_EQ(day_name(outside), u"");
    for (const int outside : {-1, 0, 13}) EXPECT_EQ(month_name(outside), u"");
}

TEST(Dates, WeekdaysFollowTheCalendar) {
    EXPECT_EQ(day_name(weekday_of({2003, 11, 20})), u"Thursday");
    EXPECT_EQ(day_name(weekday_of({2000, 2, 29})), u"Tuesday");
    EXPECT_EQ(day_name(weekday_of({2001, 1, 1})), u"Monday");
    EXPECT_EQ(day_name(weekday_of({1999, 12, 31})), u"Friday");
    EXPECT_EQ(day_name(weekday_of({2004, 2, 29})), u"Sunday");
}

int days_of(int month, int year) {
    if (month == 2) return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0) ? 29 : 28;
    return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

LocalTime day_after(LocalTime day) {
    if (++day.day <= days_of(day.month, day.year)) return day;
    return day.month == 12 ? LocalTime{day.year + 1, 1, 1} : LocalTime{day.year, day.month + 1, 1};
}

TEST(Dates, EveryDayOfEightHundredYearsFollowsTheOneBefore) {
    LocalTime day{1600, 1, 1};
    for (int number = -109571, weekday = 7; day.year < 2400; ++number, weekday = weekday % 7 + 1) {
        ASSERT_EQ(host::local_time({static_cast<double>(number)}), day);
        ASSERT_EQ(weekday_of(day), weekday);
        day = day_after(day);
    }
}

TEST(Dates, ReachFromTheYear100To9999) {
    EXPECT_EQ(host::local_time({-657434.5}), (LocalTime{100, 1, 1, 12, 0, 0}));
    EXPECT_EQ(host::local_time({2958465.5}), (LocalTime{9999, 12, 31, 12, 0, 0}));
    for (const double days : {-657435.0, 2958466.0, 1e300, std::nan("")})
        EXPECT_THROW(host::local_time({days}), host::Error) << days;
}

TEST(Dates, LessThanHalfASecondBeforeMidnightIsTheNextDay) {
    EXPECT_EQ(host::local_time({37945.999999}), (LocalTime{2003, 11, 21}));
    EXPECT_EQ(host::local_time({37945.99999}), (LocalTime{2003, 11, 20, 23, 59, 59}));
}

TEST(Dates, HoursGoFromTwelveToEleven) {
    EXPECT_EQ(clock_time({2003, 1, 1, 0, 0, 0}), u"12:00:00 AM");
    EXPECT_EQ(clock_time({2003, 1, 1, 12, 5, 9}), u"12:05:09 PM");
    EXPECT_EQ(short_clock_time({2003, 1, 1, 23, 59, 0}), u"11:59 PM");
    EXPECT_EQ(sortable_moment({2003, 1, 2, 3, 4, 5}), u"01-02-2003 03:04:05 AM");
}

class Calendar : public Composing {
protected:
    Calendar() {
        host_application->values[u"GetNamespace"] = as(mapi);
        mapi->values[u"GetDefaultFolder"] = as(folder);
        folder->values[u"Items"] = as(all);
        all->values[u"Restrict"] = as(chosen);
        chosen->when_called = [this](TextView member) {
            if (member == u"GetFirst") next_ = 0;
            const auto entry =
                next_ < appointments.size() ? host::Value(as(appointments[next_])) : host::Value();
            ++next_;
            chosen->values[Text(member)] = entry;
        };
    }

    void add(TextView subject, double days) {
        auto appointment = recorder(u"appointment");
        appointment->values = {{u"Subject", Text(subject)}, {u"Start", host::Date{days}}};
        appointments.push_back(appointment);
    }

    Text next() { return next_appointment(application, clock, reports); }

    static constexpr double day = 37945; // 20 November 2003
    std::vector<Recorder> appointments;
    Recorder folder = recorder(u"folder"), all = recorder(u"all"), chosen = recorder(u"chosen");

private:
    std::size_t next_ = 0;
};

TEST_F(Calendar, TheFirstLaterAppointmentIsNamed) {
    add(u"Earlier", day + 13.0 / 24);
    add(u"Review", day + 16.0 / 24);
    add(u"Dinner", day + 19.0 / 24);
    EXPECT_EQ(next(), u"Review at 4:00 PM");
    EXPECT_EQ(journal[1], u"mapi.GetDefaultFolder 9");
    EXPECT_EQ(journal[2], u"all.Sort [Start]");
    EXPECT_EQ(journal[3], u"all.IncludeRecurrences = True");
    EXPECT_EQ(journal[4],
              u"all.Restrict [Start] >= 'November-20-2003' and [Start] < 'November-20-2003 11:59 pm'");
}

TEST_F(Calendar, TheComparisonOfTextsHidesAnAfternoonFromTheMorning) {
    clock.time.hour = 11;
    add(u"Lunch", day + 13.0 / 24);
    EXPECT_EQ(next(), u"");
}

TEST_F(Calendar, AnAppointmentWithoutATimeIsAnErrorInTheLog) {
    add(u"Review", day + 16.0 / 24);
    appointments[0]->values[u"Start"] = Text(u"4:00 PM");
    EXPECT_EQ(next(), u"");
    ASSERT_EQ(reports.entries.size(), 1U);
    EXPECT_EQ(reports.entries[0].description, u"Type mismatch");
}

TEST_F(Calendar, NoAppointmentOrNoCalendarIsAnEmptyText) {
    EXPECT_EQ(next(), u"");
    EXPECT_TRUE(reports.entries.empty());
    mapi->failing.insert(u"GetDefaultFolder");
    EXPECT_EQ(next(), u"");
    EXPECT_EQ(reports.entries.size(), 1U);
}

class Quotes : public Composing {
protected:
    Quotes() {
        set(admin::TipsFileLocation, u"C:\\tips.txt");
        std::string lines;
        for (int i = 1; i <= 14; ++i) lines += "heading\r\n";
        files.contents[u"C:\\tips.txt"] = lines + "15 First\r\n16 Second\r\nend\r\n";
    }
    void next(TextView quote, TextView number) {
        GetNextQuote(store, files, reports);
        EXPECT_EQ(read(store, user::SendQuoteString), quote);
        EXPECT_EQ(store.find(system_section, system::LastTipNumber.name), number);
    }
};

TEST_F(Quotes, StartAtFifteenAndComeInTurn) {
    next(u"First", u"16");
    next(u"Second", u"17");
}

TEST_F(Quotes, AfterTheLastOneComesNoneAndThenSixteen) {
    set(system::LastTipNumber, u"17");
    next(u"", u"16");
    next(u"Second", u"17");
}

TEST_F(Quotes, ALineThatOnlyBeginsWithTheNumberCountsToo) {
    files.contents[u"C:\\tips.txt"] = "150 Long\n" + files.contents[u"C:\\tips.txt"];
    next(u" Long", u"16");
}

TEST_F(Quotes, ANumberWithoutALineIsAnEmptyQuote) {
    files.contents[u"C:\\tips.txt"] += std::string(10, '\n');
    set(system::LastTipNumber, u"20");
    next(u"", u"21");
}

TEST_F(Quotes, AMissingFileLeavesTheSettings) {
    set(admin::TipsFileLocation, u"C:\\gone.txt");
    set(user::SendQuoteString, u"old");
    GetNextQuote(store, files, reports);
    EXPECT_EQ(read(store, user::SendQuoteString), u"old");
    EXPECT_FALSE(store.find(u"System Settings", system::LastTipNumber.name));
    EXPECT_EQ(reports.entries.size(), 1U);
}

TEST_F(Quotes, ABoilerplateIsReadWithAForwardSlash) {
    set(admin::HTMFilesPath, u"C:\\stationery");
    files.contents[u"C:\\stationery/hello.txt"] = "a\r\nb";
    EXPECT_EQ(boilerplate_text(store, files, u"hello.txt", reports), u"<BR>a<BR>b<BR><BR>");
    EXPECT_EQ(boilerplate_text(store, files, u"", reports), u"");
    EXPECT_EQ(boilerplate_text(store, files, u"None", reports), u"");
    EXPECT_TRUE(reports.entries.empty());
    EXPECT_EQ(boilerplate_text(store, files, u"gone.txt", reports), u"");
    EXPECT_EQ(reports.entries.size(), 1U);
}

TEST(TemplateBaseName, StandsInFrontOfTheMark) {
    EXPECT_EQ(template_base_name(u"Main_template.htm"), u"Main");
    EXPECT_EQ(template_base_name(u"_template_template"), u"");
    EXPECT_THROW(template_base_name(u"Main.htm"), Failure);
}

TEST(HostDates, AreDaysSinceTheEndOf1899) {
    EXPECT_EQ(host::local_time({0}), (LocalTime{1899, 12, 30}));
    EXPECT_EQ(host::local_time({37945.75}), (LocalTime{2003, 11, 20, 18, 0, 0}));
    EXPECT_EQ(host::local_time({36584}), (LocalTime{2000, 2, 28}));
    EXPECT_EQ(host::local_time({36586}), (LocalTime{2000, 3, 1}));
    EXPECT_EQ(host::local_time({-1.25}), (LocalTime{1899, 12, 29, 6, 0, 0}));
    EXPECT_THROW(host::local_time({1e300}), host::Error);
}

} // namespace
} // namespace ornavel::compose
