#include "compose/merge.h"

#include "tests/compose/plain_passes.h"
#include "tests/fakes/recording_reports.h"

#include <gtest/gtest.h>

#include <random>

namespace ornavel::compose {
namespace {

using namespace settings;

Text merged(const Store& store, Text text) {
    EXPECT_EQ(Merge::of_body(store).apply(text), 0U);
    return text;
}

Text merged_file(const Store& store, Text text) {
    EXPECT_EQ(Merge::of_signature_file(store).apply(text), 0U);
    return text;
}

struct FieldExample {
    TextView text, result;
};

TEST(BodyMerge, EmptyFieldsTakeTheirLabelAndBreakWithThem) {
    const FieldExample examples[] = {
        {u"a<br>Phone: [#SigTelephone#]<BR>b", u"a<br>b"},
        {u"<FONT>Phone:</FONT> [#SigTelephone#]<BR>", u"<FONT></FONT>"},
        {u"Phone: [#SigTelephone#]<Br>", u"Phone: <Br>"},
        {u"[#SigTelephoneLabel#][#SigTelephone#]<BR>x", u"x"},
        {u"[#SigFaxlabel#][#SigFax#]<BR>x", u"x"},
        {u"[#SigCellLabel#][#SigCell#]<BR>x", u"x"},
        {u"FAX</font>&nbsp; [#SigFax#]<br>", u"</font>"},
        {u"CELL</B> [#SigCell#]<BR>", u"</B>"},
    };
    const MemoryStore store;
    for (const auto& [text, result] : examples) EXPECT_EQ(merged(store, Text(text)), result);
}

TEST(BodyMerge, AnEmptyPositionRemovesTheLinesOfBothLanguages) {
    MemoryStore store;
    save(store, admin::SigPositionFR, u"Directeur");
    EXPECT_EQ(merged(store, u"[#SigPosition#]<BR>[#SigPositionFR#] <br>[#SigPositionFR#]"), u"Directeur");
}

TEST(BodyMerge, LabelsHaveDefaultsThatTheSignatureFilesDoNotHave) {
    MemoryStore store;
    save(store, admin::SigTelephone, u"123");
    EXPECT_EQ(merged(store, u"[#SigTelephoneLabel#] [#SigTelephone#]"), u"Tel: 123");
    EXPECT_EQ(merged_file(store, u"[#SigTelephoneLabel#] [#SigTelephone#]"), u" 123");
}

TEST(BodyMerge, ThreeConvertedBreaksLoseTheFirstOnly) {
    MemoryStore store;
    save(store, admin::WipeoutRemoveConvertedBR, u"True");
    EXPECT_EQ(merged(store, u"<BR>\r\n<BR>\r\n<BR>\r\n"), u"\r\n<BR>\r\n<BR>\r\n");
}

TEST(BodyMerge, AUserCodeTakesPartOnlyWithBothValues) {
    MemoryStore store;
    save(store, templates::UserCode1, u"one");
    save(store, templates::UserSwap2, u"two");
    save(store, templates::UserCode3, u"three");
    save(store, templates::UserSwap3, u"[#SigFax#]");
    save(store, admin::SigFax, u"42");
    EXPECT_EQ(merged(store, u"one two three"), u"one two 42");
}

TEST(BodyMerge, TheQuoteNeedsItsSwitch) {
    MemoryStore store;
    save(store, user::SendQuoteString, u"carpe diem");
    EXPECT_EQ(merged(store, u"<[#SigQuote#]>"), u"<>");
    save(store, user::SendQuote, u"True");
    EXPECT_EQ(merged(store, u"<[#SigQuote#]>"), u"<carpe diem>");
}

TEST(BodyMerge, LocalFilesBecomeSitesOnlyForRichText) {
    MemoryStore store;
    EXPECT_EQ(merged(store, u"file://x"), u"file://x");
    save(store, user::RTFOnly, u"True");
    EXPECT_EQ(merged(store, u"file://x file:///y"), u"http://x http:///y");
}

TEST(BodyMerge, AGroupThatGrowsTooFarIsLeftAndTheNextGoesOn) {
    MemoryStore store;
    save(store, templates::UserCode1, u"a");
    save(store, templates::UserSwap1, Text(1 << 20, u'y'));
    save(store, templates::UserCode2, u"b");
    save(store, templates::UserSwap2, u"never");
    save(store, admin::SigFullname, u"Jo");
    Text text = Text(1 << 10, u'a') + u"b[#SigFullname#]";
    EXPECT_EQ(Merge::of_body(store).apply(text), 1U);
    EXPECT_EQ(text, Text(1 << 10, u'a') + u"bJo");
}

TEST(FileMerge, AGroupThatGrowsTooFarIsAnErrorInTheLog) {
    MemoryStore store;
    save(store, admin::SigFullname, Text(1 << 20, u'y'));
    Text text;
    for (int i = 0; i < 1 << 10; ++i) text += u"[#SigFullname#]";
    RecordingReports errors;
    merge_signature_file(text, Merge::of_signature_file(store), errors);
    ASSERT_EQ(errors.entries.size(), 1U);
    EXPECT_EQ(errors.entries[0].sub_function, u"merge_signature_file");
    EXPECT_EQ(errors.entries[0].section, u"Merge_Err");
}

TEST(FileMerge, WithoutFaxTheDefaultRulesDeleteTheWordCellEverywhere) {
    MemoryStore store;
    save(store, admin::SigCell, u"7");
    EXPECT_EQ(merged_file(store, u"CELL</font>&nbsp; [#SigCell#]"), u"</font>&nbsp; 7");
}

TEST(FileMerge, RepairsLinksThatAWordProcessorSplit) {
    MemoryStore store;
    save(store, admin::SigEmail, u"jo@example.com");
    save(store, admin::SigWebsite, u"www.example.com");
    save(store, admin::SigWebsiteDisplayName, u"Example");
    const FieldExample examples[] = {
        {uR"(mailto:%5b" \\l "SigEmail#])", u"mailto:jo@example.com"},
        {uR"(file:///C:\\\\Program%20Files\\\\Brevant\\\\Ornavel\\\\Signatures\\\\%5b" \\l "SigWebsite#])",
         u"www.example.com"},
        {u"outbind://2/[#SigWebsite#]", u"www.example.com"},
        {uR"([#SigWebsiteDispl\hich\af27\dbch\af17\loch\f27 ayName#])", u"Example"},
        {u"#SigEmail#]", u""},
    };
    for (const auto& [text, result] : examples) EXPECT_EQ(merged_file(store, Text(text)), result);
}

/// Settings and bodies in which fields, labels, breaks and user codes meet by chance.
class RandomMerge {
public:
    explicit RandomMerge(unsigned seed) : random_(seed) {}

    MemoryStore settings() {
        MemoryStore store;
        for (const Key& key : catalogue()) {
            if (key.section != admin_section && key.section != templates_section &&
                key.section != user_section)
                continue;
            if (random_() % 3 == 0)
                save(store, key, key.kind == SettingKind::switch_ ? Text(u"True") : text(2));
        }
        return store;
    }

    Text text(std::size_t most) {
        Text text;
        for (std::size_t i = random_() % (most + 1); i > 0; --i) text.append(piece());
        return text;
    }

private:
    TextView piece() {
        static constexpr TextView pieces[] = {u"<BR>",        u" <BR>",   u"<br>",
                                              u"\r\n",        u"</FONT>", u"</font>",
                                              u"</B>",        u"Phone:",  u"TEL",
                                              u"Tel:",        u"Fax:",    u"FAX",
                                              u"Cell:",       u"CELL",    u"&nbsp;",
                                              u" ",           u"[#",      u"#]",
                                              u"x",           u"Sig",     u"file:",
                                              u"//",          u"\xDC00",  u"q",
                                              u"[",           u"#",       u"mailto:%5b\" \\\\l \"SigEmail#]",
                                              u"outbind://2/"};
        static const auto searches = all_searches();
        return random_() % 2 == 0 ? pieces[random_() % std::size(pieces)]
                                  : TextView(searches[random_() % searches.size()]);
    }

    static std::vector<Text> all_searches() {
        const MemoryStore store;
        std::vector<Text> searches;
        const Merge body = Merge::of_body(store), file = Merge::of_signature_file(store);
        for (const Pass& pass : body.passes()) searches.emplace_back(pass.search);
        for (const Pass& pass : file.passes()) searches.emplace_back(pass.search);
        return searches;
    }

    std::mt19937 random_;
};

TEST(Merge, IsExactOnRandomSettingsAndBodies) {
    RandomMerge random(21);
    for (int round = 0; round < 1200; ++round) {
        const MemoryStore store = random.settings();
        const Merge body = Merge::of_body(store), file = Merge::of_signature_file(store);
        for (int i = 0; i < 5; ++i) {
            const Text text = random.text(25);
            Text result = text;
            body.apply(result);
            ASSERT_EQ(result, plain_passes(text, body.passes())) << round;
            result = text;
            file.apply(result);
            ASSERT_EQ(result, plain_passes(text, file.passes())) << round;
        }
    }
}

} // namespace
} // namespace ornavel::compose
