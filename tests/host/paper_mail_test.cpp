#include "host/paper_mail.h"

#include "tests/refusal.h"

#include <gtest/gtest.h>

namespace ornavel::host {
namespace {

TEST(PaperMail, HoldsItsRecipientsFromTheFirst) {
    Letter letter;
    letter.recipients = {u"ann@x", u"bob@x"};
    const Recipients recipients = paper_item(letter).recipients();
    EXPECT_EQ(recipients.count(), 2);
    EXPECT_EQ(recipients.item(1).address(), u"ann@x");
    EXPECT_EQ(recipients.item(2).address(), u"bob@x");
    for (const int nobody : {-1, 0, 3})
        EXPECT_EQ(refusal_of([&] { recipients.item(nobody); }), u"Array index out of bounds.") << nobody;
}

TEST(PaperMail, HoldsTheWordsOfItsLetter) {
    Letter letter;
    letter.subject = u"Garden";
    letter.body = u"Hello";
    letter.html_body = u"<p>Hello</p>";
    letter.host_version = u"11.0";
    const MailItem item = paper_item(letter);
    EXPECT_EQ(item.subject(), u"Garden");
    EXPECT_EQ(item.body(), u"Hello");
    EXPECT_EQ(item.html_body(), u"<p>Hello</p>");
    EXPECT_EQ(item.links().count(), 0);
    EXPECT_EQ(paper_application(letter).version(), u"11.0");
}

TEST(PaperMail, IsWordMailWhereItsEditorIsWord) {
    for (const int editor : {plain_text_editor, word_editor}) {
        Letter letter;
        letter.editor = editor;
        const Inspector inspector = paper_item(letter).inspector();
        EXPECT_EQ(inspector.editor_type(), editor);
        EXPECT_EQ(inspector.is_word_mail(), editor == word_editor);
    }
}

TEST(PaperMail, RefusesTheMembersThatItLacksAsAMailClientDoes) {
    constexpr TextView lacks = u"Object doesn't support this property or method";
    EXPECT_EQ(refusal_of([] { paper_application({}).create_mail(); }), lacks);
    EXPECT_EQ(refusal_of([] { paper_item({}).recipients().add(u"ann@x"); }), lacks);
    EXPECT_EQ(refusal_of([] { (void)paper_item({}).billing_information(); }), lacks);
}

} // namespace
} // namespace ornavel::host
