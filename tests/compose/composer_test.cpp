#include "tests/as_written.h"
#include "tests/compose/composing.h"

namespace ornavel::compose {
namespace {

using namespace settings;

using Composer = Composing;

TEST_F(Composer, PoursTheMessageIntoTheTemplateAtTheMarker) {
    EXPECT_EQ(compose(u"Hello"), u"[Hello]\r\n");
    EXPECT_TRUE(reports.entries.empty());
}

TEST(ComposerSteps, HaveTheirNamesAndTheirOrder) {
    const TextView names[] = {u"find the template",
                              u"write the text before",
                              u"stamp the date",
                              u"wipe out HTML",
                              u"break fonts",
                              u"remove divisions",
                              u"end divisions",
                              u"break block quotes",
                              u"write the text after",
                              u"break rules",
                              u"look at the item",
                              u"read Word's document",
                              u"link addresses",
                              u"wrap lines",
                              u"replace tabs",
                              u"cut the reply",
                              u"choose the signature",
                              u"append the signature",
                              u"read the template",
                              u"ask about a script",
                              u"find the marker",
                              u"insert the message",
                              u"break the reply's tags",
                              u"shrink the reply's font",
                              u"insert the reply",
                              u"fill contact fields",
                              u"log usage",
                              u"merge fields"};
    const auto all = traps();
    ASSERT_GE(all.size(), std::size(names));
    for (std::size_t i = 0; i < std::size(names); ++i) EXPECT_EQ(all[i].place, names[i]);
}

TEST_F(Composer, ItsTrapsAreCalledAsTheErrorLogIsReadFor) {
    expect_as_written(in_lines(traps()), "compose/traps.txt");
}

TEST_F(Composer, TellsWhoeverWatchesWhatEachStepChangedInWhichText) {
    reply = {.found = true, .marker = u"-----Original"};
    std::vector<Text> changed;
    on_change = [&](const StepChange& change) {
        changed.push_back(Text(change.step) + u": " + Text(change.text));
    };
    compose(u"new-----Original");
    EXPECT_EQ(changed, (std::vector<Text>{u"cut the reply: message", u"cut the reply: new text",
                                          u"cut the reply: quoted part", u"read the template: letterhead",
                                          u"insert the message: new text", u"insert the message: result",
                                          u"insert the reply: quoted part", u"insert the reply: result"}));
}

TEST_F(Composer, TakesTheFirstHtmlFileOfTheFolderForAMissingTemplate) {
    path = u"C:\\stationery\\gone.htm";
    set(admin::HTMFilesPath, u"C:\\stationery");
    files.contents[u"C:\\stationery\\a.txt"] = "no";
    EXPECT_EQ(compose(u"Hello"), u"[Hello]\r\n");
}

TEST_F(Composer, AnEmptyTemplateFolderLeavesTheMessageWithItsSignature) {
    path = u"C:\\stationery\\gone.htm";
    set(user::Signature, u"jo.htm");
    files.contents[u"C:\\temp\\jo.htm"] = "Jo\n";
    files.contents.erase(u"C:\\stationery\\letter.htm");
    set(admin::HTMFilesPath, u"C:\\stationery");
    EXPECT_EQ(compose(u"Hello"), u"Hello<P>Jo\r\n");
    expect_error(u"CreateHTMLBody- error in htm file", u"NoFile_Err");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(Composer, AReplyWithoutATemplateKeepsItsSeparatorAndQuotedPart) {
    files.refused.insert(path);
    reply.found = true;
    reply.marker = u"--";
    EXPECT_EQ(compose(u"new--old"), u"new<p><hr>-old");
}

TEST_F(Composer, WritesTheMessageBeforeAndAfterTheFiltersForComparison) {
    set(admin::WipeOutFileCompare, u"True");
    compose(u"<BLOCKQUOTE>\u00E4");
    EXPECT_EQ(files.contents[u"C:\\add-in\\beforetext.txt"], "\xEF\xBB\xBF<BLOCKQUOTE>\xC3\xA4");
    EXPECT_EQ(files.contents[u"C:\\add-in\\aftertext.txt"], "\xEF\xBB\xBF<xBLOCKQUOTE>\xC3\xA4");
}

TEST_F(Composer, AComparisonThatCannotBeWrittenIsLoggedAndCompositionGoesOn) {
    set(admin::WipeOutFileCompare, u"True");
    files.refused.insert(u"C:\\add-in\\beforetext.txt");
    EXPECT_EQ(compose(u"Hello"), u"[Hello]\r\n");
    expect_error(u"CreateHTMLBody- error HTML File Compare", u"CompareFile_Err");
}

struct DateCase {
    TextView format, order, fixed, font, before, time, result;
};

TEST_F(Composer, StampsTheDate) {
    const DateCase cases[] = {
        {u"", u"", u"", u"", u"", u"", u"November 20, 2003<br><p>x"},
        {u"Long", u"DateString", u"Co", u"", u"", u"", u"Thursday, November 20, 2003<br>Co<p>x"},
        {u"", u"StringDate", u"Co", u"", u"", u"", u"Co<br>November 20, 2003<br><p>x"},
        {u"", u"anything", u"Co", u"<font>", u"On", u"True",
         u"<font>Co</font><br><font>On November 20, 2003 [2:05:09 PM]</font><br><p>x"},
    };
    for (const DateCase& c : cases) {
        set(user::InsertDate, u"True");
        set(user::InsertDateFormat, c.format);
        set(user::InsertOrder, c.order);
        set(user::InsertString, c.fixed);
        set(user::InsertFontControl, c.font);
        set(user::InsertStringBeforeDate, c.before);
        set(user::InsertTime, c.time);
        EXPECT_EQ(compose(u"x"), u"[" + Text(c.result) + u"]\r\n");
    }
}

struct FilterCase {
    const Key& setting;
    TextView text, result;
};

TEST_F(Composer, EachCleanUpFilterHasItsSwitch) {
    const FilterCase cases[] = {
        {admin::WipeoutHTML, u" <body a><style>b</style><img alt=c><img src>",
         u" <BODY><STYLE></STYLE><xIMG><IMG  src>"},
        {admin::WipeoutHTML, u"<img alt=c>", u"<img alt=c>"},
        {admin::WipeOutFontControl, u"face=a size=b", u"xface=a xsize=b"},
        {user::WipeoutDivTag, u"<div>a</div><DIV>", u"a<br><DIV>"},
        {admin::WipeoutHardRule, u"<hr><HR>", u"<xhr><HR>"},
    };
    for (const FilterCase& c : cases) {
        EXPECT_EQ(compose(Text(c.text)), u"[" + Text(c.text) + u"]\r\n");
        set(c.setting, u"True");
        EXPECT_EQ(compose(Text(c.text)), u"[" + Text(c.result) + u"]\r\n");
        set(c.setting, u"true");
        EXPECT_EQ(compose(Text(c.text)), u"[" + Text(c.text) + u"]\r\n");
    }
}

TEST_F(Composer, BlockQuotesAreBrokenUnlessSwitchedOff) {
    EXPECT_EQ(compose(u"<BLOCKQUOTE>"), u"[<xBLOCKQUOTE>]\r\n");
    set(admin::WipeoutBlockquote, u"False");
    EXPECT_EQ(compose(u"<BLOCKQUOTE>"), u"[<BLOCKQUOTE>]\r\n");
}

TEST_F(Composer, PlainTextBecomesLinesWithLinks) {
    item->values[u"HTMLBody"] = Text();
    EXPECT_EQ(compose(u"www.a\r\n\r\nb\tc"),
              u"[<div><span><a href=\"http://www.a\">www.a</a></span></div><div><span>&nbsp</span></div>"
              u"<div><span>b&nbsp;&nbsp;&nbsp;c</span></div>]\r\n");
}

TEST_F(Composer, AnItemThatCannotBeReadIsTakenAsHtml) {
    item->failing.insert(u"HTMLBody");
    EXPECT_EQ(compose(u"a\r\nb"), u"[a\r\nb]\r\n");
    expect_error(u"CreateHTMLBody", u"CreateHTM_Err");
}

class WordMail : public Composing {
protected:
    WordMail() {
        item->values[u"HTMLBody"] = Text();
        inspector->values[u"IsWordMail"] = true;
        inspector->values[u"WordEditor"] = as(document);
        document->values[u"Content"] = as(recorder(u"content"));
        document->values[u"Application"] = as(word);
        document->when_called = [this](TextView) { files.contents[saved] = "<p>line\r\n<Img>two"; };
        word->values[u"Version"] = Text(u"10.0");
    }
    Text saved = u"C:\\add-in\\GetMyHtml.htm";
    Recorder document = recorder(u"document"), word = recorder(u"word");
};

TEST_F(WordMail, IsSavedReadBackAndDeleted) {
    EXPECT_EQ(compose(u"ignored"), u"[<p>line <xMG>two ]\r\n");
    EXPECT_EQ(journal, (std::vector<Text>{u"content.Copy", u"document.SaveAs " + saved + u" 10"}));
    EXPECT_EQ(files.contents.count(saved), 0U);
}

struct VersionCase {
    TextView version, format;
};

TEST_F(WordMail, TheVersionChoosesTheFormat) {
    for (const auto& [version, format] : {VersionCase{u"9.0", u" 8"}, {u"10.2", u" 10"}, {u"8.0", u" 10"}}) {
        journal.clear();
        word->values[u"Version"] = Text(version);
        compose(u"");
        EXPECT_TRUE(journal.back().ends_with(format));
    }
}

TEST_F(WordMail, AnotherVersionSavesNothingAndKeepsTheText) {
    word->values[u"Version"] = Text(u"11.0");
    EXPECT_EQ(compose(u"kept"), u"[kept]\r\n");
    expect_error(u"CreateHTMLBody- error in Word htm file", u"WordFileOpen_Err");
}

TEST_F(WordMail, ADocumentThatCannotBeSavedKeepsTheText) {
    document->failing.insert(u"SaveAs");
    EXPECT_EQ(compose(u"kept"), u"[kept]\r\n");
    expect_error(u"CreateHTMLBody- error in Word htm file", u"WordFileOpen_Err");
}

TEST_F(WordMail, WhatAnEarlierMessageLeftBehindIsNotReadWhereTheEditorSavesNothing) {
    files.contents[saved] = "<p>another's";
    document->when_called = [](TextView) {};
    EXPECT_EQ(compose(u"kept"), u"[kept]\r\n");
    expect_error(u"CreateHTMLBody- error in Word htm file", u"WordFileOpen_Err");
}

class Replying : public Composing {
protected:
    Replying() {
        reply.found = true;
        reply.marker = u"-----Original";
    }
};

TEST_F(Replying, TheQuotedPartFollowsTheTemplateAndTheSeparator) {
    EXPECT_EQ(compose(u"new -----Original Message"), u"[new ]\r\n<p><hr>----Original Message");
    set(admin::WipeoutReplySeparator, u"<br>");
    EXPECT_EQ(compose(u"new -----Original"), u"[new ]\r\n<p><br>----Original");
}

TEST_F(Replying, OffsetsMoveBothCuts) {
    reply.search_offset = 3;
    reply.insert_offset = 0;
    EXPECT_EQ(compose(u"abcd-----Original!"), u"[ab]\r\n<p><hr>-----Original!");
    reply.insert_offset = 500;
    EXPECT_EQ(compose(u"abcd-----Original!"), u"[ab]\r\n<p><hr>");
}

TEST_F(Replying, ALengthBelowZeroIsAnErrorAndTheTextStays) {
    reply.search_offset = 9;
    EXPECT_EQ(compose(u"ab-----Original"), u"[ab-----Original]\r\n<p><hr>");
    expect_error(
        u"parsing error - reply - length of the message is 15 - CreateHTMLBody- error Reply state parsing - "
        u"myMessageReply_err",
        u"");
}

TEST_F(Replying, OfAPlainItemHasItsOwnLabel) {
    reply.search_offset = 99;
    item->values[u"HTMLBody"] = Text();
    compose(u"a-----Original");
    expect_error(u"parsing error - reply - length of the message is 38 - myMessageReplyFormatFalse_err", u"");
}

TEST_F(Replying, AMarkerInTheItemOnlyCutsTheItem) {
    item->values[u"HTMLBody"] = Text(u"item-----Original");
    EXPECT_EQ(compose(u"message"), u"[item]\r\n<p><hr>----Original");
}

TEST_F(Replying, WithoutItsMarkerIsANewMessageWithASeparator) {
    EXPECT_EQ(compose(u"message"), u"[message]\r\n<p><hr>");
}

TEST_F(Replying, TheSignatureStandsInATableWithTheNewText) {
    set(user::Signature, u"jo.htm");
    files.contents[u"C:\\temp\\jo.htm"] = "Jo";
    EXPECT_EQ(
        compose(u"new-----Original"),
        u"[<TABLE  width='100%' cellspacing='0' cellpadding='0' border='0'>new<P>Jo\r\n</TABLE>]\r\n<p><hr>"
        u"----Original");
    set(admin::WipeoutSignatureTable, u"False");
    EXPECT_EQ(compose(u"new-----Original"), u"[new<P>Jo\r\n]\r\n<p><hr>----Original");
}

TEST_F(Replying, TagsOfTheQuotedPartAreBroken) {
    set(admin::RemoveReplyTags, u"True");
    set(admin::WipeoutHTMLBeginTag, u"<b>");
    set(admin::WipeoutHTMLEndTag, u"</b>");
    set(admin::WipeoutHTMLTagsGroup, u"<i>,<u>");
    EXPECT_EQ(compose(u"<b>-----Original<b>a</b><i><u>"), u"[<b>]\r\n<p><hr>----Original<!-- a -->x<i>x<u>");
    set(admin::WipeoutHTMLTagsGroup, u"NONE,<i>");
    EXPECT_EQ(compose(u"-----Original<i>"), u"[]\r\n<p><hr>----Original<i>");
}

TEST_F(Replying, TheQuotedPartCanBeSmall) {
    set(admin::WipeoutReplyFontSmall, u"True");
    EXPECT_EQ(compose(u"a-----Original"), u"[a]\r\n<p><hr><span font size=1>----Original</span>");
}

TEST_F(Composer, AppendsTheSignature) {
    set(user::Signature, u" jo.htm ");
    set(admin::SignaturesPath, u"C:\\signatures");
    files.contents[u"C:\\signatures\\jo.htm"] = "Jo\nSender";
    EXPECT_EQ(compose(u"x"), u"[x<P>Jo\r\nSender\r\n]\r\n");
}

TEST_F(Composer, TakesTheFormsSignatureUnlessTheSettingsAreToDecide) {
    form_signature = u" ann.htm ";
    files.contents[u"C:\\temp\\ann.htm"] = "Ann";
    EXPECT_EQ(compose(u"x"), u"[x<P>Ann\r\n]\r\n");
    form_signature = u"none";
    EXPECT_EQ(compose(u"x"), u"[x]\r\n");
}

TEST_F(Composer, TakesTheFirstSignatureForAMissingOne) {
    set(user::Signature, u"gone.htm");
    files.contents[u"C:\\temp\\b.htm"] = "B";
    EXPECT_EQ(compose(u"x"), u"[x<P>B\r\n]\r\n");
}

TEST_F(Composer, ASignatureThatCannotBeReadIsLeftOut) {
    set(user::Signature, u"gone.htm");
    EXPECT_EQ(compose(u"x"), u"[x]\r\n");
    expect_error(u"CreateHTMLBody", u"Signature_Err");
}

TEST_F(Composer, AScriptInTheTemplateIsAskedAbout) {
    for (const char* end : {"</script>", "</SCRIPT>"}) {
        boxes = {};
        files.contents[path] = std::string(end) + "[#Input your message here#]";
        EXPECT_EQ(compose(u"x"), from_utf8(end) + u"[#Input your message here#]\r\n");
        EXPECT_EQ(outcome, Outcome::refused);
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].title, u"Ornavel Security Warning");
        EXPECT_EQ(boxes.shown[0].text,
                  u"This Template has script in it. This means that your recipients may not be "
                  u"able to \r\nsee or access your message. Continue with your message? Click No "
                  u"to cancel, Yes to continue");
        boxes.agreed[u"Ornavel Security Warning"] = true;
        EXPECT_EQ(compose(u"x"), from_utf8(end) + u"x\r\n");
        EXPECT_EQ(outcome, Outcome::composed);
    }
}

TEST_F(Composer, AQuestionAboutAScriptThatCantBePutIsNoRefusal) {
    files.contents[path] = "</script>[#Input your message here#]";
    boxes.broken = u"Ornavel Security Warning";
    EXPECT_EQ(compose(u"x"), u"</script>x\r\n");
    EXPECT_EQ(outcome, Outcome::composed);
    expect_error(u"CreateHTMLBody", u"CreateHTM_Err");
}

TEST_F(Composer, AScriptInMixedCaseOrInAPreviewIsNotAskedAbout) {
    files.contents[path] = "</Script>[#Input your message here#]";
    EXPECT_EQ(compose(u"x"), u"</Script>x\r\n");
    files.contents[path] = "</script>[#Input your message here#]";
    purpose = Purpose::preview;
    EXPECT_EQ(compose(u"x"), u"</script>x\r\n");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(Composer, ATemplateWithoutAMarkerStandsAloneAfterABox) {
    files.contents[path] = "no marker [#SigBGColor#]";
    reply.found = true;
    EXPECT_EQ(compose(u"x"), u"no marker #FFFFFF\r\n");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, u"Brevant Template error");
    EXPECT_EQ(boxes.shown[0].text, u"You have chosen to use a Template that has not been \r\nmodified for "
                                   u"use as an Brevant Template.\r\n\r\n"
                                   u"You can click Help! and learn more about Brevant Templates.\r\nBrevant "
                                   u"will try to use this Template.");
}

TEST_F(Composer, TemplatesMayBeInAnyEncoding) {
    const std::string marker = "[#Input your message here#]";
    std::string utf16 = "\xFF\xFE";
    for (const char unit : "\xE4" + marker) utf16 += std::string{unit, '\0'};
    for (const std::string& bytes :
         {"\xE4" + marker, "\xC3\xA4" + marker, "\xEF\xBB\xBF\xC3\xA4" + marker, utf16}) {
        files.contents[path] = bytes;
        EXPECT_EQ(compose(u"x"), u"\u00E4x\r\n");
    }
}

TEST_F(Composer, LoneSurrogatesAndNulUnitsSurvive) {
    const Text odd{u'a', char16_t{0}, char16_t{0xD800}, u'b'};
    EXPECT_EQ(compose(odd), u"[" + odd + u"]\r\n");
}

TEST_F(Composer, AnErrorIsAskedAboutOnceAndMailedOnYes) {
    reports.offers = true;
    files.refused.insert(path);
    compose(u"x");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].title, u"Error Report");
    EXPECT_EQ(boxes.shown[0].text,
              u"Brevant has just experienced an error. Brevant has prepared a desciption or the "
              u"error.\r\nWould you like to send it now?");
    EXPECT_TRUE(reports.mailed.empty());
    boxes.agreed[u"Error Report"] = true;
    compose(u"x");
    EXPECT_EQ(reports.mailed.size(), 1U);
}

/// A filter that would outgrow the largest text ends in the trap of its own step, and the text stays.
TEST_F(Composer, AMergeThatGrowsTooFarIsLoggedAndTheRestGoesOn) {
    set(templates::UserCode1, u"q");
    set(templates::UserSwap1, Text(1 << 20, u'y'));
    set(admin::SigFullname, u"Jo");
    const Text many(1 << 10, u'q');
    EXPECT_EQ(compose(many + u"[#SigFullname#]"), u"[" + many + u"Jo]\r\n");
    expect_error(u"CreateHTMLBody", u"CreateHTM_Err");
}

TEST_F(Composer, TabsThatGrowTooFarEndInTheirOwnTrap) {
    item->values[u"HTMLBody"] = Text();
    const Text tabs((4 << 20), u'\t');
    const Text composed = compose(tabs);
    EXPECT_EQ(composed.size(), tabs.size() + std::size_t{28});
    expect_error(u"CreateHTMLBody- error EndSpanControl", u"EndSpanControl_Err");
}

TEST_F(Composer, LinesThatGrowTooFarEndInTheirOwnTrap) {
    item->values[u"HTMLBody"] = Text();
    Text lines;
    for (int i = 0; i < (3 << 20); ++i) lines += u"\r\n";
    const Text composed = compose(lines);
    EXPECT_EQ(composed.size(), lines.size() + 4);
    expect_error(u"CreateHTMLBody- error SpanControl", u"SpanControl_Err");
}

TEST_F(Composer, AFilterThatGrowsTooFarEndsInItsOwnTrap) {
    set(admin::WipeOutFontControl, u"True");
    Text faces;
    for (int i = 0; i < 11 << 20; ++i) faces += u"face=";
    faces += Text(largest_text - faces.size(), u' ');
    EXPECT_EQ(compose(faces).size(), faces.size() + 4);
    expect_error(u"CreateHTMLBody- error FontControl", u"FontControl_Err");
}

TEST_F(Composer, ImagesThatGrowTooFarLeaveBodyTagAndStyleAsTheyWere) {
    set(admin::WipeoutHTML, u"True");
    Text images = u"<body a><style>b</style>";
    for (int i = 0; i < 10; ++i) images += u"<img>";
    images += Text(largest_text - images.size(), u' ');
    const Text composed = compose(images);
    EXPECT_TRUE(composed == u"[" + images + u"]\r\n"); // not printed when it differs
    expect_error(u"CreateHTMLBody- error Wipeout HTML", u"WipeoutHTML_Err");
}

} // namespace
} // namespace ornavel::compose
