#include "compose/merge_rows.h"

#include "base/encoding.h"
#include "compose/merge.h"

#include <gtest/gtest.h>

namespace ornavel::compose {
namespace {

using namespace settings;

// A row that asks whether a text is on, or a switch empty, does not compile.
template <class SomeKey>
concept CanBeOn = requires(const SomeKey& key) {
    When::on(key);
};
template <class SomeKey>
concept CanBeNotOn = requires(const SomeKey& key) {
    When::not_on(key);
};
template <class SomeKey>
concept CanBeEmpty = requires(const SomeKey& key) {
    When::empty(key);
};
template <class SomeKey>
concept CanBeFilled = requires(const SomeKey& key) {
    When::filled(key);
};

template <class SomeKey>
constexpr int ways_of = CanBeOn<SomeKey> + CanBeNotOn<SomeKey> + CanBeEmpty<SomeKey> + CanBeFilled<SomeKey>;
static_assert(CanBeOn<SwitchKey> && CanBeNotOn<SwitchKey> && ways_of<SwitchKey> == 2);
static_assert(CanBeEmpty<TextKey> && CanBeFilled<TextKey> && ways_of<TextKey> == 2);
static_assert(ways_of<TickKey> == 0 && ways_of<NumberKey> == 0 && ways_of<Key> == 0);

// A second transcription of both merges, one row a line: search text, arrow, replacement. "<Key>" is a
// setting's value; "\r\n" is a line end.

constexpr TextView body_of_a_fresh_installation = uR"rows([#SigQuote#] => 
[#SigFullname#] => 
[#SigFullnameFR#] => 
[#SigPosition#]</FONT><BR> => </FONT>
[#SigPosition#]</font><br> => </font>
[#SigPosition#]<BR> => 
[#SigPosition#] <BR> => 
[#SigPosition#]<br> => 
[#SigPosition#] <br> => 
[#SigPositionFR#]</FONT><BR> => </FONT>
[#SigPositionFR#]</font><br> => </font>
[#SigPositionFR#]<BR> => 
[#SigPositionFR#] <BR> => 
[#SigPositionFR#]<br> => 
[#SigPositionFR#] <br> => 
[#SigPosition#] => 
[#SigPositionFR#] => 
Phone:</FONT> [#SigTelephone#]<BR> => </FONT>
Phone:</font> [#SigTelephone#]<br> => </font>
Phone: [#SigTelephone#]<BR> => 
Phone: [#SigTelephone#] <BR> => 
Phone: [#SigTelephone#]<br> => 
Phone: [#SigTelephone#] <br> => 
TEL</FONT> [#SigTelephone#]<BR> => </FONT>
TEL</font> [#SigTelephone#]<br> => </font>
TEL</font>&nbsp; [#SigTelephone#]<br> => </font>
TEL</FONT>&nbsp; [#SigTelephone#]<BR> => </FONT>
TEL [#SigTelephone#]<BR> => 
TEL [#SigTelephone#] <BR> => 
TEL [#SigTelephone#]<br> => 
TEL [#SigTelephone#] <br> => 
TEL</B> [#SigTelephone#]<BR> => </B>
Tel:</FONT> [#SigTelephone#]<BR> => </FONT>
Tel:</font> [#SigTelephone#]<br> => </font>
Tel:</B> [#SigTelephone#]<BR> => </B>
Tel: [#SigTelephone#]<BR> => 
Tel: [#SigTelephone#] <BR> => 
Tel: [#SigTelephone#]<br> => 
Tel: [#SigTelephone#] <br> => 
[#SigTelephoneLabel#][#SigTelephone#]<BR> => 
[#SigTelephoneLabel#][#SigTelephone#] <BR> => 
[#SigTelephoneLabel#][#SigTelephone#]<br> => 
[#SigTelephoneLabel#][#SigTelephone#] <br> => 
[#SigTelephoneLabel#] => 
[#SigTelephone#]<BR> => 
[#SigTelephone#] <BR> => 
[#SigTelephone#]<br> => 
[#SigTelephone#] <br> => 
[#SigTelephone#] => 
Fax:</FONT> [#SigFax#]<BR> => </FONT>
Fax:</font> [#SigFax#]<br> => </font>
Fax:</B> [#SigFax#]<BR> => </B>
Fax: [#SigFax#]<BR> => 
Fax: [#SigFax#] <BR> => 
Fax: [#SigFax#]<br> => 
Fax: [#SigFax#] <br> => 
FAX</FONT> [#SigFax#]<BR> => </FONT>
FAX</font> [#SigFax#]<br> => </font>
FAX</FONT>&nbsp; [#SigFax#]<BR> => </FONT>
FAX</font>&nbsp; [#SigFax#]<br> => </font>
FAX [#SigFax#]<BR> => 
FAX [#SigFax#] <BR> => 
FAX [#SigFax#]<br> => 
FAX [#SigFax#] <br> => 
FAX</B> [#SigFax#]<BR> => </B>
[#SigFaxlabel#][#SigFax#]<BR> => 
[#SigFaxlabel#][#SigFax#] <BR> => 
[#SigFaxlabel#][#SigFax#]<br> => 
[#SigFaxlabel#][#SigFax#] <br> => 
[#SigFaxLabel#] => 
[#SigFax#]<BR> => 
[#SigFax#] <BR> => 
[#SigFax#]<br> => 
[#SigFax#] <br> => 
[#SigFax#] => 
[#SigAddress#] => 
[#SigAddress2#] => 
[#SigAddress3#] => 
[#SigAddress4#] => 
[#SigAddressFR#] => 
[#SigAddress2FR#] => 
[#SigAddress3FR#] => 
[#SigAddress4FR#] => 
Cell:</FONT> [#SigCell#]<BR> => </FONT>
Cell:</font> [#SigCell#]<br> => </font>
Cell:</B> [#SigCell#]<BR> => </B>
Cell: [#SigCell#]<BR> => 
Cell: [#SigCell#]<BR> => 
Cell: [#SigCell#] <BR> => 
Cell: [#SigCell#]<br> => 
Cell: [#SigCell#] <br> => 
CELL</FONT> [#SigCell#]<BR> => </FONT>
CELL</font> [#SigCell#]<br> => </font>
CELL</FONT>&nbsp; [#SigCell#]<BR> => </FONT>
CELL</font>&nbsp; [#SigCell#]<br> => </font>
CELL [#SigCell#]<BR> => 
CELL [#SigCell#] <BR> => 
CELL [#SigCell#]<br> => 
CELL [#SigCell#] <br> => 
CELL</B> [#SigCell#]<BR> => </B>
[#SigCell#]<BR> => 
[#SigCell#] <BR> => 
[#SigCell#]<br> => 
[#SigCell#] <br> => 
[#SigCellLabel#][#SigCell#]<BR> => 
[#SigCellLabel#][#SigCell#] <BR> => 
[#SigCellLabel#][#SigCell#]<br> => 
[#SigCellLabel#][#SigCell#] <br> => 
[#SigCellLabel#] => 
[#SigCell#] => 
[#SigEmail#] => 
[#SigOrganizationName#] => 
[#SigOrganizationNameFR#] => 
[#SigWebsite#] => 
[#SigWebsiteFR#] => 
[#SigWebsiteCustom1#] => 
[#SigWebsiteCustom2#] => 
[#SigWebsiteCustom3#] => 
[#SigWebsiteCustom4#] => 
[#SigWebsiteCustom5#] => 
[#SigWebsiteCustom6#] => 
[#SigWebsiteCustom7#] => 
[#SigWebsiteCustom8#] => 
[#SigWebsiteCustom9#] => 
[#SigWebsiteCustom10#] => 
[#SigWebsiteDisplayName#] => 
[#SigWebsiteDisplayNameFR#] => 
[#SigGifFile#] => 
[#SigGifFile2#] => 
[#SigGifFile3#] => 
[#SigGifFile4#] => 
[#SigGifFile5#] => 
[#SigJPEGFile#] => 
[#SigJPEGFile2#] => 
[#SigJPEGFile3#] => 
[#SigJPEGFile4#] => 
[#SigJPEGFile5#] => 
[#SigBGColor#] => #FFFFFF
)rows";

constexpr TextView body_with_every_setting = uR"rows(<UserCode1> => <UserSwap1>
<UserCode2> => <UserSwap2>
<UserCode3> => <UserSwap3>
<UserCode4> => <UserSwap4>
<UserCode5> => <UserSwap5>
[#SigQuote#] => <SendQuoteString>
file:// => http://
[#SigFullname#] => <SigFullname>
[#SigFullnameFR#] => <SigFullnameFR>
[#SigPosition#] => <SigPosition>
[#SigPositionFR#] => <SigPositionFR>
[#SigTelephone#] => <SigTelephone>
[#SigTelephoneLabel#] => <SigTelephoneLabel>
[#SigFax#] => <SigFax>
[#SigFaxLabel#] => <SigFaxLabel>
[#SigAddress#] => <SigAddress>
[#SigAddress2#] => <SigAddress2>
[#SigAddress3#] => <SigAddress3>
[#SigAddress4#] => <SigAddress4>
[#SigAddressFR#] => <SigAddressFR>
[#SigAddress2FR#] => <SigAddress2FR>
[#SigAddress3FR#] => <SigAddress3FR>
[#SigAddress4FR#] => <SigAddress4FR>
[#SigCell#] => <SigCell>
[#SigCellLabel#] => <SigCellLabel>
[#SigEmail#] => <SigEmail>
[#SigOrganizationName#] => <SigOrganizationName>
[#SigOrganizationNameFR#] => <SigOrganizationNameFR>
[#SigWebsite#] => <SigWebsite>
[#SigWebsiteFR#] => <SigWebsiteFR>
[#SigWebsiteCustom1#] => <SigWebsiteCustom1>
[#SigWebsiteCustom2#] => <SigWebsiteCustom2>
[#SigWebsiteCustom3#] => <SigWebsiteCustom3>
[#SigWebsiteCustom4#] => <SigWebsiteCustom4>
[#SigWebsiteCustom5#] => <SigWebsiteCustom5>
[#SigWebsiteCustom6#] => <SigWebsiteCustom6>
[#SigWebsiteCustom7#] => <SigWebsiteCustom7>
[#SigWebsiteCustom8#] => <SigWebsiteCustom8>
[#SigWebsiteCustom9#] => <SigWebsiteCustom9>
[#SigWebsiteCustom10#] => <SigWebsiteCustom10>
[#SigWebsiteDisplayName#] => <SigWebsiteDisplayName>
[#SigWebsiteDisplayNameFR#] => <SigWebsiteDisplayNameFR>
[#SigGifFile#] => <SigGifFile>
[#SigGifFile2#] => <SigGifFile2>
[#SigGifFile3#] => <SigGifFile3>
[#SigGifFile4#] => <SigGifFile4>
[#SigGifFile5#] => <SigGifFile5>
[#SigJPEGFile#] => <SigJPEGFile>
[#SigJPEGFile2#] => <SigJPEGFile2>
[#SigJPEGFile3#] => <SigJPEGFile3>
[#SigJPEGFile4#] => <SigJPEGFile4>
[#SigJPEGFile5#] => <SigJPEGFile5>
<BR>\r\n<BR> => \r\n<BR>
[#SigBGColor#] => <SigBGColor>
)rows";

constexpr TextView file_of_a_fresh_installation = uR"rows([#SigFullname#] => 
[#SigFullnameFR#] => 
[#SigOrganizationName#] => 
[#SigOrganizationNameFR#] => 
[#SigDivision#] => 
[#SigDivisionFR#] => 
[#SigBranch#] => 
[#SigBranchFR#] => 
[#SigPosition#] => 
[#SigPositionFR#] => 
[#SigTelephone#] => 
[#SigTelephoneLabel#] => 
[#SigFaxLabel#] => 
[#SigCellLabel#] => 
[#SigPositionLabel#] => 
[#SigDivisionLabel#] => 
[#SigBranchLabel#] => 
FAX</font>&nbsp; [#SigCell#] => </font>
CELL => 
[#SigFax#] => 
CELL</font>&nbsp; [#SigCell#] => </font>
CELL => 
[#SigCell#] => 
mailto:%5b" \\l "SigEmail#] => mailto:
file:///C:\\\\Program%20Files\\\\Brevant\\\\Ornavel\\\\Signatures\\\\%5b" \\l "SigWebsite#] => 
outbind://2/[#SigWebsite#] => 
[#SigEmail#] => 
[#SigWebsite#] => 
[#SigWebsiteFR#] => 
[#SigWebsiteDisplayName#] => 
[#SigWebsiteDispl\hich\af27\dbch\af17\loch\f27 ayName#] => 
[#SigWebsiteDisplayNameFR#] => 
[#SigAddress#] => 
[#SigAddress2#] => 
[#SigAddress3#] => 
[#SigAddress4#] => 
[#SigAddressFR#] => 
[#SigAddress2FR#] => 
[#SigAddress3FR#] => 
[#SigAddress4FR#] => 
[#SigAddress\hich\af27\dbch\af17\loch\f27 2\hich\af27\dbch\af17\loch\f27 #] => 
[#SigAddress\hich\af27\dbch\af17\loch\f27 3\hich\af27\dbch\af17\loch\f27 #] => 
[#SigAddress\hich\af27\dbch\af17\loch\f27 4\hich\af27\dbch\af17\loch\f27 #] => 
#SigEmail#] => 
#SigWebsite#] => 
)rows";

constexpr TextView file_with_every_setting = uR"rows([#SigFullname#] => <SigFullname>
[#SigFullnameFR#] => <SigFullnameFR>
[#SigOrganizationName#] => <SigOrganizationName>
[#SigOrganizationNameFR#] => <SigOrganizationNameFR>
[#SigDivision#] => <SigDivision>
[#SigDivisionFR#] => <SigDivisionFR>
[#SigBranch#] => <SigBranch>
[#SigBranchFR#] => <SigBranchFR>
[#SigPosition#] => <SigPosition>
[#SigPositionFR#] => <SigPositionFR>
[#SigTelephone#] => <SigTelephone>
[#SigTelephoneLabel#] => <SigTelephoneLabel>
[#SigFaxLabel#] => <SigFaxLabel>
[#SigCellLabel#] => <SigCellLabel>
[#SigPositionLabel#] => <SigPositionLabel>
[#SigDivisionLabel#] => <SigDivisionLabel>
[#SigBranchLabel#] => <SigBranchLabel>
[#SigFax#] => <SigFax>
[#SigCell#] => <SigCell>
mailto:%5b" \\l "SigEmail#] => mailto:<SigEmail>
file:///C:\\\\Program%20Files\\\\Brevant\\\\Ornavel\\\\Signatures\\\\%5b" \\l "SigWebsite#] => <SigWebsite>
outbind://2/[#SigWebsite#] => <SigWebsite>
[#SigEmail#] => <SigEmail>
[#SigWebsite#] => <SigWebsite>
[#SigWebsiteFR#] => <SigWebsiteFR>
[#SigWebsiteDisplayName#] => <SigWebsiteDisplayName>
[#SigWebsiteDispl\hich\af27\dbch\af17\loch\f27 ayName#] => <SigWebsiteDisplayName>
[#SigWebsiteDisplayNameFR#] => <SigWebsiteDisplayNameFR>
[#SigAddress#] => <SigAddress>
[#SigAddress2#] => <SigAddress2>
[#SigAddress3#] => <SigAddress3>
[#SigAddress4#] => <SigAddress4>
[#SigAddressFR#] => <SigAddressFR>
[#SigAddress2FR#] => <SigAddress2FR>
[#SigAddress3FR#] => <SigAddress3FR>
[#SigAddress4FR#] => <SigAddress4FR>
[#SigAddress\hich\af27\dbch\af17\loch\f27 2\hich\af27\dbch\af17\loch\f27 #] => <SigAddress2>
[#SigAddress\hich\af27\dbch\af17\loch\f27 3\hich\af27\dbch\af17\loch\f27 #] => <SigAddress3>
[#SigAddress\hich\af27\dbch\af17\loch\f27 4\hich\af27\dbch\af17\loch\f27 #] => <SigAddress4>
#SigEmail#] => 
#SigWebsite#] => 
<UserCode1> => <UserSwap1>
<UserCode2> => <UserSwap2>
<UserCode3> => <UserSwap3>
<UserCode4> => <UserSwap4>
<UserCode5> => <UserSwap5>
)rows";

/// Every text setting holds its own name in angle brackets, every switch is on. Of two names for one value
/// the first counts.
MemoryStore every_setting() {
    MemoryStore store;
    for (const Key& key : catalogue())
        if (!store.find(key.section, key.name))
            save(store, key, key.kind == SettingKind::switch_ ? Text(u"True") : u"<" + Text(key.name) + u">");
    return store;
}

void expect_rows(std::span<const Pass> passes, TextView transcription) {
    const auto lines = lines_of(transcription);
    ASSERT_EQ(passes.size(), lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Pass& pass = passes[i];
        const Text row = Text(pass.search) + u" => " + Text(pass.replacement);
        EXPECT_EQ(to_utf8(replace_all(row, line_end, u"\\r\\n")), to_utf8(lines[i])) << "row " << i;
    }
}

TEST(MergeRows, OfABodyWithoutSettings) {
    const MemoryStore store;
    expect_rows(Merge::of_body(store).passes(), body_of_a_fresh_installation);
}

TEST(MergeRows, OfABodyWithEverySetting) {
    const MemoryStore store = every_setting();
    expect_rows(Merge::of_body(store).passes(), body_with_every_setting);
}

TEST(MergeRows, OfASignatureFileWithoutSettings) {
    const MemoryStore store;
    expect_rows(Merge::of_signature_file(store).passes(), file_of_a_fresh_installation);
}

TEST(MergeRows, OfASignatureFileWithEverySetting) {
    const MemoryStore store = every_setting();
    expect_rows(Merge::of_signature_file(store).passes(), file_with_every_setting);
}

} // namespace
} // namespace ornavel::compose
