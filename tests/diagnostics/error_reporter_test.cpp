#include "diagnostics/error_reporter.h"

#include "tests/fakes/fixed_clock.h"
#include "tests/fakes/memory_files.h"
#include "tests/fakes/recording_object.h"

#include <gtest/gtest.h>

namespace ornavel::diagnostics {
namespace {

using namespace settings;

constexpr TextView log_path = u"C:\\addin\\Support\\SupportLog.txt";

class Machine final : public SystemInformation {
public:
    OperatingSystem operating_system() const override { return {2, 5, 1, 2600}; }
    int processor_type() const override { return 586; }
    Memory memory() const override {
        if (silent) throw Failure(u"no answer");
        return {268435456, 134217728, 2147483648, 1073741824};
    }
    Text computer_name() const override { return u"DESK-7"; }
    Text user_name() const override { return u"jo"; }
    Text registered_owner() const override { return {}; }
    Text registered_organization() const override { return {}; }
    bool silent = false;
};

class Asked final : public Prompt {
public:
    bool ask(TextView mode) override {
        modes.emplace_back(mode);
        if (while_open) while_open();
        return answer;
    }
    std::vector<Text> modes;
    bool answer = false;
    std::function<void()> while_open;
};

class Creator final : public host::Objects {
public:
    host::ObjectPtr create(TextView prog_id) override {
        if (prog_id != u"Redemption.SafeMailItem" || !safe)
            throw host::Error(u"ActiveX component can't create object");
        return safe;
    }
    host::ObjectPtr get(TextView) override { throw host::Error(u"Invalid syntax"); }
    std::shared_ptr<RecordingObject> safe;
};

struct ErrorReporterTest : testing::Test {
    std::vector<Text> mail; ///< what was done to the mail, through the wrapper
    std::vector<Text> elsewhere;
    MemoryStore store;
    MemoryFiles files;
    FixedClock clock;
    ErrorLog log{store, files, clock, u"C:\\addin"};
    Asked prompt;
    Machine machine;
    Creator objects;
    std::shared_ptr<RecordingObject> recipients = std::make_shared<RecordingObject>(mail, u"Recipients");
    std::shared_ptr<RecordingObject> recipient = std::make_shared<RecordingObject>(mail, u"Recipient");
    std::shared_ptr<RecordingObject> attachments = std::make_shared<RecordingObject>(mail, u"Attachments");
    std::shared_ptr<RecordingObject> inspector = std::make_shared<RecordingObject>(elsewhere);
    std::shared_ptr<RecordingObject> item = std::make_shared<RecordingObject>(elsewhere);
    std::shared_ptr<RecordingObject> outlook = std::make_shared<RecordingObject>(elsewhere);
    host::Application application{outlook};
    ErrorReporter errors{{store, log, prompt, machine, objects, application, u"C:\\addin"}};

    void SetUp() override {
        outlook->values = {{u"Version", Text(u"11.0.6353")}, {u"CreateItem", host::ObjectPtr(item)}};
        item->values = {{u"GetInspector", host::ObjectPtr(inspector)}};
        inspector->values = {{u"IsWordMail", false}, {u"EditorType", std::int32_t{2}}};
        objects.safe = std::make_shared<RecordingObject>(mail, u"Mail");
        recipients->values = {{u"Add", host::ObjectPtr(recipient)}};
        objects.safe->values = {{u"Recipients", host::ObjectPtr(recipients)},
                                {u"Attachments", host::ObjectPtr(attachments)}};
    }

    void raise(TextView section = u"Merge_Err") {
        errors.Write_to_error_file(u"Disk full", u"CreateHTMLBody", section);
    }
    std::string logged() const {
        const auto found = files.contents.find(Text(log_path));
        return found == files.contents.end() ? "" : found->second;
    }
    /// The value that the mail's property was given.
    Text mailed(TextView property) const {
        const Text start = u"Mail." + Text(property) + u" = ";
        for (const Text& line : mail)
            if (line.starts_with(start)) return line.substr(start.size());
        return u"(not set)";
    }
    bool did(TextView line) const { return std::ranges::find(mail, line) != mail.end(); }
};

const std::string line = "Date: 11-20-2003 14:05:09, CreateHTMLBody, Merge_Err, Disk full\r\n";
const std::string own_failure = "Date: 11-20-2003 14:05:09, An error has occurred in Ornavel- Procedure "
                                "Write_to_error_file. The error is:";

TEST_F(ErrorReporterTest, AnErrorIsLoggedAndTheUserIsAskedInTheSupportMode) {
    raise();
    EXPECT_EQ(logged(), line);
    EXPECT_EQ(prompt.modes, std::vector<Text>{u"Support email request"});
    EXPECT_EQ(read(store, admin::ErrorFileLocation), log_path);
}

TEST_F(ErrorReporterTest, WhoWatchesIsToldEveryTrapAlsoWhereTheErrorIsExcepted) {
    std::vector<Text> sprung;
    ErrorReporter watched{{store, log, prompt, machine, objects, application, u"C:\\addin",
                           [&](TrapName trap) { sprung.push_back(Text(trap.section) + Text(trap.place)); }}};
    save(store, admin::ErrorFileExceptions, u"Disk full");
    watched.take(u"Disk full", {u"CreateHTMLBody", u"Merge_Err", u" in a place"});
    watched.Write_to_error_file(u"Disk full", u"CreateHTMLBody", u"CreateHTM_Err");
    EXPECT_EQ(sprung, (std::vector<Text>{u"Merge_Err in a place", u"CreateHTM_Err"}));
    EXPECT_EQ(logged(), "");
}

TEST_F(ErrorReporterTest, DecliningKeepsTheLogLineAndMakesNoMail) {
    raise();
    EXPECT_EQ(logged(), line);
    EXPECT_TRUE(mail.empty());
    EXPECT_TRUE(elsewhere.empty());
}

TEST_F(ErrorReporterTest, AYesMailsTheReportWithTheLogThroughTheWrapper) {
    prompt.answer = true;
    save(store, admin::EmailAddressNotify, u"help@example.com");
    raise();
    EXPECT_EQ(mailed(u"Item"), u"(object)");
    EXPECT_EQ(mailed(u"Subject"), u"Ornavel Error");
    EXPECT_EQ(mailed(u"BillingInformation"), u"Preview Send");
    EXPECT_EQ(mailed(u"DeleteAfterSubmit"), u"True");
    EXPECT_TRUE(did(u"Recipients.Add help@example.com"));
    EXPECT_TRUE(did(u"Attachments.Add " + Text(log_path)));
    EXPECT_EQ(mail.back(), u"Mail.Send");
}

TEST_F(ErrorReporterTest, WithoutAnAddressTheReportGoesToTheSupportAddress) {
    prompt.answer = true;
    raise();
    EXPECT_TRUE(did(u"Recipients.Add support@brevant.example"));
}

TEST_F(ErrorReporterTest, TheReportHasItsLinesInOrderWithALoneLineFeedBeforeTheSystem) {
    prompt.answer = true;
    save(store, user::Template, u"letter.htm");
    save(store, admin::HTMFilesPath, u"C:\\templates");
    save(store, user::Signature, u"none");
    save(store, admin::SignaturesPath, u"C:\\signatures");
    save(store, admin::SuppressMailItemToolbar, u"a");
    save(store, admin::SysTray, u"b");
    save(store, user::SuppressToolbar, u"c");
    save(store, user::PromptOnReplies, u"d");
    save(store, system::Performance, u"e");
    save(store, user::ReplyAsIs, u"1");
    raise();
    EXPECT_EQ(mailed(u"Body"), u"Date (mdy): 11-20-2003 14:05:09\r\n"
                               u"Description: Disk full\r\n"
                               u"Sub/function: CreateHTMLBody\r\n"
                               u"Section: Merge_Err\r\n"
                               u"Outlook Version: 11.0.6353\r\n"
                               u"Ornavel Version: 3.9.9\r\n"
                               u"Ornavel Version Comments: Dresses outgoing messages in the "
                               u"stationery and signature that the user chose.\r\n"
                               u"Ornavel Version Description: Ornavel e-mail stationery add-in\r\n"
                               u"Application System path: C:\\addin\r\n"
                               u"Template: letter.htm\r\n"
                               u"Template path: C:\\templates\r\n"
                               u"Signature: none\r\n"
                               u"Signature path: C:\\signatures\r\n"
                               u"SuppressMailItemToolbar: a\r\n"
                               u"SysTray: b\r\n"
                               u"SuppressToolbar: c\r\n"
                               u"PromptOnReplies: d\r\n"
                               u"Performance: e\r\n"
                               u"Reply as is: 1\n"
                               u"Windows NT 5.1 (Build 2600)\r\n"
                               u"CPU: Intel Pentium\r\n"
                               u"Total Physical Memory: 262,144K\r\n"
                               u"Available Physical Memory: 131,072K\r\n"
                               u"Total Virtual Memory: 2,097,152K\r\n"
                               u"Available Virtual Memory: 1,048,576K\r\n"
                               u"Word as editor: false\r\n"
                               u"Editor type: HTML");
}

TEST_F(ErrorReporterTest, AbsentSettingsPrintAsEmptyWhateverTheirDefault) {
    prompt.answer = true;
    raise();
    EXPECT_TRUE(contains(mailed(u"Body"),
                         u"Template: \r\nTemplate path: \r\nSignature: \r\nSignature path: \r\n"
                         u"SuppressMailItemToolbar: \r\nSysTray: \r\nSuppressToolbar: \r\n"
                         u"PromptOnReplies: \r\nPerformance: \r\nReply as is: \nWindows NT"));
}

TEST_F(ErrorReporterTest, TheEditorIsNamedByItsNumber) {
    const std::pair<std::int32_t, TextView> cases[] = {{1, u"Text"}, {2, u"HTML"},    {3, u"RTF"},
                                                       {4, u"WORD"}, {0, u"unknown"}, {5, u"unknown"}};
    for (const auto& [number, name] : cases) {
        mail.clear();
        prompt.answer = true;
        inspector->values = {{u"IsWordMail", true}, {u"EditorType", number}};
        raise();
        EXPECT_TRUE(mailed(u"Body").ends_with(u"\r\nWord as editor: true\r\nEditor type: " + Text(name)));
    }
}

TEST_F(ErrorReporterTest, AUsersOwnRequestIsMailedWithoutAsking) {
    errors.Write_to_error_file(u"Notified by user- help", u"Systray option", u"UserRequest");
    EXPECT_TRUE(prompt.modes.empty());
    EXPECT_EQ(mailed(u"Subject"), u"User Request for help!");
    EXPECT_EQ(mail.back(), u"Mail.Send");
    EXPECT_EQ(logged(), "Date: 11-20-2003 14:05:09, Systray option, UserRequest, Notified by user- help\r\n");
}

TEST_F(ErrorReporterTest, WithMailToSupportOffNoMailIsMadeWhateverAnOlderAnswerWas) {
    prompt.answer = true;
    raise();
    mail.clear();
    for (const TextView value : {u"False", u"true", u""}) {
        save(store, admin::EmailErrorNotify, value);
        raise();
        raise(u"UserRequest");
    }
    EXPECT_EQ(prompt.modes.size(), 1U);
    EXPECT_TRUE(mail.empty());
}

TEST_F(ErrorReporterTest, SuppressedMailLeavesOneShortLineAndNeverOpensThePrompt) {
    save(store, admin::ErrorFileSuppressEmail, u"True");
    save(store, admin::ErrorFileExceptions, u"Disk full");
    raise();
    raise(u"UserRequest");
    EXPECT_EQ(logged(), "Date: 11-20-2003 14:05:09, Disk full - CreateHTMLBody - Merge_Err\r\n"
                        "Date: 11-20-2003 14:05:09, Disk full - CreateHTMLBody - UserRequest\r\n");
    EXPECT_TRUE(prompt.modes.empty());
    EXPECT_TRUE(mail.empty());
}

TEST_F(ErrorReporterTest, AnErrorThatIsListedAsAnExceptionLeavesNoTrace) {
    save(store, admin::ErrorFileExceptions, u"Type mismatch;Disk full;other");
    raise();
    EXPECT_TRUE(files.contents.empty());
    EXPECT_TRUE(prompt.modes.empty());
    EXPECT_EQ(read(store, admin::ErrorFileLocation), u"");
}

TEST_F(ErrorReporterTest, ExceptionsCompareWithCaseAndAnEmptyDescriptionIsNone) {
    save(store, admin::ErrorFileExceptions, u"disk full");
    raise();
    errors.Write_to_error_file(u"", u"routine", u"step");
    EXPECT_EQ(logged(), line + "Date: 11-20-2003 14:05:09, routine, step, \r\n");
}

TEST_F(ErrorReporterTest, AHostThatIsGoneCostsTheReportItsVersionOnly) {
    outlook->failing = {u"Version"};
    prompt.answer = true;
    raise();
    EXPECT_TRUE(contains(mailed(u"Body"), u"\r\nOutlook Version: \r\nOrnavel Version: 3.9.9\r\n"));
    EXPECT_EQ(mail.back(), u"Mail.Send");
    EXPECT_EQ(logged(), line);
}

TEST_F(ErrorReporterTest, AnEditorThatCantBeReadCostsTheReportItsLineOnly) {
    prompt.answer = true;
    inspector->failing = {u"IsWordMail"};
    raise();
    EXPECT_TRUE(mailed(u"Body").ends_with(u"1,048,576K\r\nEditor type: HTML"));
    mail.clear();
    item->failing = {u"GetInspector"};
    raise();
    EXPECT_TRUE(mailed(u"Body").ends_with(u"1,048,576K"));
    EXPECT_EQ(mail.back(), u"Mail.Send");
}

TEST_F(ErrorReporterTest, AMachineThatGivesNoAnswerCostsTheReportItsSystemLines) {
    machine.silent = true;
    prompt.answer = true;
    raise();
    EXPECT_TRUE(contains(mailed(u"Body"), u"Reply as is: \n\r\nWord as editor: false"));
}

TEST_F(ErrorReporterTest, WithoutTheWrapperNoMailIsMadeAndANoteSaysWhy) {
    objects.safe.reset();
    prompt.answer = true;
    raise();
    EXPECT_TRUE(mail.empty());
    EXPECT_EQ(logged(),
              line + own_failure + "ActiveX component can't create object Error trapping - Ornavel\r\n");
}

TEST_F(ErrorReporterTest, AMailThatCantBeSentLeavesADatedNote) {
    objects.safe->failing = {u"Send"};
    prompt.answer = true;
    raise();
    EXPECT_EQ(logged(), line + own_failure + "rehearsed failure of Send Error trapping - Ornavel\r\n");
}

TEST_F(ErrorReporterTest, AReportWhoseLogCantBeAttachedIsStillSent) {
    attachments->failing = {u"Add"};
    prompt.answer = true;
    raise();
    EXPECT_EQ(mail.back(), u"Mail.Send");
}

TEST_F(ErrorReporterTest, TheRecipientOfAReportIsResolved) {
    prompt.answer = true;
    raise();
    EXPECT_TRUE(did(u"Recipient.Resolve"));
}

TEST_F(ErrorReporterTest, AReportWhoseRecipientCantBeResolvedIsStillSent) {
    recipient->failing = {u"Resolve"};
    prompt.answer = true;
    raise();
    EXPECT_EQ(mail.back(), u"Mail.Send");
    EXPECT_EQ(logged(), line);
}

TEST_F(ErrorReporterTest, ALogThatCantBeWrittenStopsNeitherQuestionNorMail) {
    save(store, admin::ErrorFileLocation, u"C:\\locked.txt");
    files.refused.insert(u"C:\\locked.txt");
    prompt.answer = true;
    raise();
    EXPECT_EQ(mail.back(), u"Mail.Send");
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(ErrorReporterTest, ADefaultLogThatCantBeCreatedStopsNothing) {
    files.refused.insert(u"C:\\addin\\Support");
    raise();
    EXPECT_EQ(prompt.modes.size(), 1U);
    EXPECT_TRUE(files.contents.empty());
}

TEST_F(ErrorReporterTest, APromptThatFailsCountsAsNoAndLeavesADatedNote) {
    prompt.answer = true;
    prompt.while_open = [] { throw Failure(u"no window"); };
    raise();
    EXPECT_TRUE(mail.empty());
    EXPECT_EQ(logged(), line + own_failure + "no window Error trapping - Ornavel\r\n");
    prompt.while_open = {};
    raise();
    EXPECT_EQ(prompt.modes.size(), 2U) << "a prompt that failed must not silence the next one";
}

TEST_F(ErrorReporterTest, AnErrorWhileTheQuestionIsOpenIsLoggedAndNotAskedAgain) {
    prompt.answer = true;
    prompt.while_open = [this] {
        errors.Write_to_error_file(u"second", u"inner", u"Inner_Err");
        EXPECT_EQ(errors.log_error(u"third", {u"inner", u"Inner_Err"}), std::nullopt);
    };
    raise();
    EXPECT_EQ(prompt.modes.size(), 1U);
    EXPECT_EQ(logged(), line + "Date: 11-20-2003 14:05:09, inner, Inner_Err, second\r\n"
                               "Date: 11-20-2003 14:05:09, inner, Inner_Err, third\r\n");
    EXPECT_EQ(std::ranges::count(mail, u"Mail.Send"), 1);
}

TEST_F(ErrorReporterTest, AnErrorWhileTheReportIsBeingSentIsLoggedAndNotReported) {
    prompt.answer = true;
    objects.safe->when_called = [this](TextView) {
        errors.Write_to_error_file(u"second", u"ol_ItemSend", u"gate");
    };
    raise();
    EXPECT_EQ(prompt.modes.size(), 1U);
    EXPECT_EQ(std::ranges::count(mail, u"Mail.Send"), 1);
    EXPECT_EQ(logged(), line + "Date: 11-20-2003 14:05:09, ol_ItemSend, gate, second\r\n");
}

TEST_F(ErrorReporterTest, TheMailClientMayGoWhileTheQuestionIsOpen) {
    prompt.answer = true;
    prompt.while_open = [this] { application.release(); };
    raise();
    EXPECT_TRUE(mail.empty());
    EXPECT_EQ(logged(), line + own_failure + "Object variable not set Error trapping - Ornavel\r\n");
}

TEST_F(ErrorReporterTest, ARoutineWithItsOwnQuestionLogsFirstAndMailsOnYes) {
    const auto report = errors.log_error(u"Disk full", {u"CreateHTMLBody", u"Merge_Err"});
    EXPECT_EQ(logged(), line);
    EXPECT_TRUE(prompt.modes.empty());
    EXPECT_TRUE(mail.empty());
    ASSERT_TRUE(report);
    errors.mail_report(*report);
    EXPECT_EQ(mailed(u"Subject"), u"Ornavel Error");
    EXPECT_TRUE(contains(mailed(u"Body"), u"Description: Disk full\r\n"));
    EXPECT_EQ(mail.back(), u"Mail.Send");
}

TEST_F(ErrorReporterTest, ARoutineWithItsOwnQuestionHasNothingToAskWhenNoReportMayGo) {
    save(store, admin::ErrorFileExceptions, u"known");
    EXPECT_EQ(errors.log_error(u"known", {u"r", u"s"}), std::nullopt);
    save(store, admin::EmailErrorNotify, u"False");
    EXPECT_EQ(errors.log_error(u"Disk full", {u"CreateHTMLBody", u"Merge_Err"}), std::nullopt);
    EXPECT_EQ(logged(), line);
    save(store, admin::EmailErrorNotify, u"True");
    save(store, admin::ErrorFileSuppressEmail, u"True");
    EXPECT_EQ(errors.log_error(u"Disk full", {u"r", u"s"}), std::nullopt);
    EXPECT_EQ(logged(), line + "Date: 11-20-2003 14:05:09, Disk full - r - s\r\n");
}

} // namespace
} // namespace ornavel::diagnostics
