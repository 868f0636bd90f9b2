#include "rehearsal/report/frame.h"
#include "rehearsal/report/html.h"
#include "tests/rehearsal/holds.h"

#include <gtest/gtest.h>

using namespace ornavel;
using namespace ornavel::rehearsal;
using namespace ornavel::rehearsal::report;

TEST(ReportHtml, EscapesEveryCharacterThatCouldEndATextOrAQuote) {
    EXPECT_EQ(escape("<a href=\"x\" id='y'>R&D</a>"),
              "&lt;a href=&quot;x&quot; id=&#39;y&#39;&gt;R&amp;D&lt;/a&gt;");
}

TEST(ReportHtml, EscapesWhatIsEscapedAlreadyOnceMore) { EXPECT_EQ(escape("&lt;"), "&amp;lt;"); }

TEST(ReportHtml, KeepsLettersBeyondAsciiAndReplacesNul) {
    EXPECT_EQ(escape(std::string("Gr\u00fc\u00dfe\0", 8)), "Gr\u00fc\u00dfe\uFFFD");
}

TEST(ReportHtml, TextElementsEscapeTheirTextAndElementsDoNot) {
    EXPECT_EQ(text_element("p", "line", "a<b"), "<p class=\"line\">a&lt;b</p>\n");
    EXPECT_EQ(element("p", "", "<b>c</b>"), "<p><b>c</b></p>\n");
}

TEST(ReportFrame, AMessageCannotLeaveItsFrame) {
    const auto frame = message_frame("A title", "\"></iframe><script>alert(1)</script>", {}, 100);
    EXPECT_EQ(frame.find("<script>"), std::string::npos);
    EXPECT_EQ(frame.find("</iframe>"), frame.rfind("</iframe>"));
    EXPECT_TRUE(frame.starts_with(
        "<iframe sandbox=\"allow-same-origin\" title=\"A title\" height=\"100\" srcdoc=\""));
}

TEST(ReportFrame, ATitleCannotLeaveItsFrameEither) {
    EXPECT_TRUE(holds(plain_text_frame("a\"><b>", "", 100), "title=\"a&quot;&gt;&lt;b&gt;\""));
}

TEST(ReportFrame, TheMessageStandsBehindAPolicyThatLoadsNothing) {
    const auto frame = message_frame("A title", "<IMG SRC=\"http://a.example/x.gif\">", {}, 100);
    const auto policy = frame.find("default-src &#39;none&#39;; img-src data:;");
    ASSERT_NE(policy, std::string::npos);
    EXPECT_LT(policy, frame.find("a.example"));
}

TEST(ReportFrame, PicturesAmongTheFilesAreCarriedInThePage) {
    const Named<std::string> files = {{u"C:\\Pictures\\logo.gif", "GIF89a"}};
    for (const char* address : {"file:///C:/Pictures/logo.gif", "C:\\Pictures\\logo.gif"}) {
        const auto frame = message_frame("A title", "<IMG SRC=\"" + std::string(address) + "\">", files, 100);
        EXPECT_TRUE(holds(frame, "SRC=&quot;data:image/gif;base64,R0lGODlh&quot;")) << address;
    }
}

TEST(ReportFrame, FilesThatAreNoPicturesStayOutOfThePage) {
    const Named<std::string> files = {{u"C:\\Pictures\\letter.htm", "secret"}};
    EXPECT_TRUE(
        holds(message_frame("A title", "C:\\Pictures\\letter.htm", files, 100), "C:\\Pictures\\letter.htm"));
}

TEST(ReportFrame, ALongerMessageGetsAHigherFrameWithinBounds) {
    std::string longer = "<P>a", endless;
    for (int i = 0; i < 20; ++i) longer += "<BR>a";
    for (int i = 0; i < 2000; ++i) endless += "<BR>a";
    EXPECT_LT(estimated_height(""), estimated_height(longer));
    EXPECT_LT(estimated_height(longer), estimated_height(endless));
    EXPECT_LT(estimated_height(endless), 1000);
}

TEST(ReportFrame, PlainTextIsShownAsItStands) {
    EXPECT_TRUE(holds(plain_text_frame("A title", "a < b", 100), "&gt;a &amp;lt; b&lt;/pre&gt;"));
}
