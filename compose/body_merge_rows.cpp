#include "compose/merge_rows.h"

// The rows of the body merge, one by one in their order, with their oddities: which variants of a pattern
// exist, and in which order, decides what becomes of the templates out there.

namespace ornavel::compose {
namespace {

using namespace settings;

constexpr MergeRow user_code_1[] = {{{}, {}, &templates::UserSwap1, {}, &templates::UserCode1}};
constexpr MergeRow user_code_2[] = {{{}, {}, &templates::UserSwap2, {}, &templates::UserCode2}};
constexpr MergeRow user_code_3[] = {{{}, {}, &templates::UserSwap3, {}, &templates::UserCode3}};
constexpr MergeRow user_code_4[] = {{{}, {}, &templates::UserSwap4, {}, &templates::UserCode4}};
constexpr MergeRow user_code_5[] = {{{}, {}, &templates::UserSwap5, {}, &templates::UserCode5}};

constexpr MergeBlock user_code_blocks[] = {
    {When::filled(templates::UserSwap1), user_code_1}, {When::filled(templates::UserSwap2), user_code_2},
    {When::filled(templates::UserSwap3), user_code_3}, {When::filled(templates::UserSwap4), user_code_4},
    {When::filled(templates::UserSwap5), user_code_5},
};

constexpr MergeRow with_quote[] = {value(u"[#SigQuote#]", user::SendQuoteString)};
constexpr MergeRow without_quote[] = {{u"[#SigQuote#]", u""}};

constexpr MergeRow local_files_as_sites[] = {{u"file://", u"http://"}};

constexpr MergeRow full_names[] = {
    value(u"[#SigFullname#]", admin::SigFullname),
    value(u"[#SigFullnameFR#]", admin::SigFullnameFR),
};

// The English value decides about the French lines as well, whatever the French one is: bilingual templates
// set the two in pairs, and half a pair would be left alone.
constexpr MergeRow without_position[] = {
    {u"[#SigPosition#]</FONT><BR>", u"</FONT>"},
    {u"[#SigPosition#]</font><br>", u"</font>"},
    {u"[#SigPosition#]<BR>", u""},
    {u"[#SigPosition#] <BR>", u""},
    {u"[#SigPosition#]<br>", u""},
    {u"[#SigPosition#] <br>", u""},
    {u"[#SigPositionFR#]</FONT><BR>", u"</FONT>"},
    {u"[#SigPositionFR#]</font><br>", u"</font>"},
    {u"[#SigPositionFR#]<BR>", u""},
    {u"[#SigPositionFR#] <BR>", u""},
    {u"[#SigPositionFR#]<br>", u""},
    {u"[#SigPositionFR#] <br>", u""},
};

constexpr MergeRow positions[] = {
    value(u"[#SigPosition#]", admin::SigPosition),
    value(u"[#SigPositionFR#]", admin::SigPositionFR),
};

constexpr MergeRow without_telephone[] = {
    {u"Phone:</FONT> [#SigTelephone#]<BR>", u"</FONT>"},
    {u"Phone:</font> [#SigTelephone#]<br>", u"</font>"},
    {u"Phone: [#SigTelephone#]<BR>", u""},
    {u"Phone: [#SigTelephone#] <BR>", u""},
    {u"Phone: [#SigTelephone#]<br>", u""},
    {u"Phone: [#SigTelephone#] <br>", u""},
    {u"TEL</FONT> [#SigTelephone#]<BR>", u"</FONT>"},
    {u"TEL</font> [#SigTelephone#]<br>", u"</font>"},
    {u"TEL</font>&nbsp; [#SigTelephone#]<br>", u"</font>"},
    {u"TEL</FONT>&nbsp; [#SigTelephone#]<BR>", u"</FONT>"},
    {u"TEL [#SigTelephone#]<BR>", u""},
    {u"TEL [#SigTelephone#] <BR>", u""},
    {u"TEL [#SigTelephone#]<br>", u""},
    {u"TEL [#SigTelephone#] <br>", u""},
    {u"TEL</B> [#SigTelephone#]<BR>", u"</B>"},
    {u"Tel:</FONT> [#SigTelephone#]<BR>", u"</FONT>"},
    {u"Tel:</font> [#SigTelephone#]<br>", u"</font>"},
    {u"Tel:</B> [#SigTelephone#]<BR>", u"</B>"},
    {u"Tel: [#SigTelephone#]<BR>", u""},
    {u"Tel: [#SigTelephone#] <BR>", u""},
    {u"Tel: [#SigTelephone#]<br>", u""},
    {u"Tel: [#SigTelephone#] <br>", u""},
    {u"[#SigTelephoneLabel#][#SigTelephone#]<BR>", u""},
    {u"[#SigTelephoneLabel#][#SigTelephone#] <BR>", u""},
    {u"[#SigTelephoneLabel#][#SigTelephone#]<br>", u""},
    {u"[#SigTelephoneLabel#][#SigTelephone#] <br>", u""},
    {u"[#SigTelephoneLabel#]", u""},
    {u"[#SigTelephone#]<BR>", u""},
    {u"[#SigTelephone#] <BR>", u""},
    {u"[#SigTelephone#]<br>", u""},
    {u"[#SigTelephone#] <br>", u""},
    value(u"[#SigTelephone#]", admin::SigTelephone),
};

constexpr MergeRow with_telephone[] = {
    value(u"[#SigTelephone#]", admin::SigTelephone),
    value(u"[#SigTelephoneLabel#]", admin::SigTelephoneLabel),
};

// "SigFaxlabel" has a small l, and must: a template that spells "SigFaxLabel" keeps its line break, and those
// in use are laid out with it.
constexpr MergeRow without_fax[] = {
    {u"Fax:</FONT> [#SigFax#]<BR>", u"</FONT>"},
    {u"Fax:</font> [#SigFax#]<br>", u"</font>"},
    {u"Fax:</B> [#SigFax#]<BR>", u"</B>"},
    {u"Fax: [#SigFax#]<BR>", u""},
    {u"Fax: [#SigFax#] <BR>", u""},
    {u"Fax: [#SigFax#]<br>", u""},
    {u"Fax: [#SigFax#] <br>", u""},
    {u"FAX</FONT> [#SigFax#]<BR>", u"</FONT>"},
    {u"FAX</font> [#SigFax#]<br>", u"</font>"},
    {u"FAX</FONT>&nbsp; [#SigFax#]<BR>", u"</FONT>"},
    {u"FAX</font>&nbsp; [#SigFax#]<br>", u"</font>"},
    {u"FAX [#SigFax#]<BR>", u""},
    {u"FAX [#SigFax#] <BR>", u""},
    {u"FAX [#SigFax#]<br>", u""},
    {u"FAX [#SigFax#] <br>", u""},
    {u"FAX</B> [#SigFax#]<BR>", u"</B>"},
    {u"[#SigFaxlabel#][#SigFax#]<BR>", u""},
    {u"[#SigFaxlabel#][#SigFax#] <BR>", u""},
    {u"[#SigFaxlabel#][#SigFax#]<br>", u""},
    {u"[#SigFaxlabel#][#SigFax#] <br>", u""},
    {u"[#SigFaxLabel#]", u""},
    {u"[#SigFax#]<BR>", u""},
    {u"[#SigFax#] <BR>", u""},
    {u"[#SigFax#]<br>", u""},
    {u"[#SigFax#] <br>", u""},
    value(u"[#SigFax#]", admin::SigFax),
};

constexpr MergeRow with_fax[] = {
    value(u"[#SigFax#]", admin::SigFax),
    value(u"[#SigFaxLabel#]", admin::SigFaxLabel),
};

constexpr MergeRow addresses[] = {
    value(u"[#SigAddress#]", admin::SigAddress),       value(u"[#SigAddress2#]", admin::SigAddress2),
    value(u"[#SigAddress3#]", admin::SigAddress3),     value(u"[#SigAddress4#]", admin::SigAddress4),
    value(u"[#SigAddressFR#]", admin::SigAddressFR),   value(u"[#SigAddress2FR#]", admin::SigAddress2FR),
    value(u"[#SigAddress3FR#]", admin::SigAddress3FR), value(u"[#SigAddress4FR#]", admin::SigAddress4FR),
};

// Unlike the fax, the bare field with a break goes before the label and the field, so a labelled line keeps
// nothing. "Cell: [#SigCell#]<BR>" stands twice; the second finds nothing unless the first made it.
constexpr MergeRow without_cell[] = {
    {u"Cell:</FONT> [#SigCell#]<BR>", u"</FONT>"},
    {u"Cell:</font> [#SigCell#]<br>", u"</font>"},
    {u"Cell:</B> [#SigCell#]<BR>", u"</B>"},
    {u"Cell: [#SigCell#]<BR>", u""},
    {u"Cell: [#SigCell#]<BR>", u""},
    {u"Cell: [#SigCell#] <BR>", u""},
    {u"Cell: [#SigCell#]<br>", u""},
    {u"Cell: [#SigCell#] <br>", u""},
    {u"CELL</FONT> [#SigCell#]<BR>", u"</FONT>"},
    {u"CELL</font> [#SigCell#]<br>", u"</font>"},
    {u"CELL</FONT>&nbsp; [#SigCell#]<BR>", u"</FONT>"},
    {u"CELL</font>&nbsp; [#SigCell#]<br>", u"</font>"},
    {u"CELL [#SigCell#]<BR>", u""},
    {u"CELL [#SigCell#] <BR>", u""},
    {u"CELL [#SigCell#]<br>", u""},
    {u"CELL [#SigCell#] <br>", u""},
    {u"CELL</B> [#SigCell#]<BR>", u"</B>"},
    {u"[#SigCell#]<BR>", u""},
    {u"[#SigCell#] <BR>", u""},
    {u"[#SigCell#]<br>", u""},
    {u"[#SigCell#] <br>", u""},
    {u"[#SigCellLabel#][#SigCell#]<BR>", u""},
    {u"[#SigCellLabel#][#SigCell#] <BR>", u""},
    {u"[#SigCellLabel#][#SigCell#]<br>", u""},
    {u"[#SigCellLabel#][#SigCell#] <br>", u""},
    {u"[#SigCellLabel#]", u""},
    value(u"[#SigCell#]", admin::SigCell),
};

constexpr MergeRow with_cell[] = {
    value(u"[#SigCell#]", admin::SigCell),
    value(u"[#SigCellLabel#]", admin::SigCellLabel),
};

constexpr MergeRow sites_and_pictures[] = {
    value(u"[#SigEmail#]", admin::SigEmail),
    value(u"[#SigOrganizationName#]", admin::SigOrganizationName),
    value(u"[#SigOrganizationNameFR#]", admin::SigOrganizationNameFR),
    value(u"[#SigWebsite#]", admin::SigWebsite),
    value(u"[#SigWebsiteFR#]", admin::SigWebsiteFR),
    value(u"[#SigWebsiteCustom1#]", admin::SigWebsiteCustom1),
    value(u"[#SigWebsiteCustom2#]", admin::SigWebsiteCustom2),
    value(u"[#SigWebsiteCustom3#]", admin::SigWebsiteCustom3),
    value(u"[#SigWebsiteCustom4#]", admin::SigWebsiteCustom4),
    value(u"[#SigWebsiteCustom5#]", admin::SigWebsiteCustom5),
    value(u"[#SigWebsiteCustom6#]", admin::SigWebsiteCustom6),
    value(u"[#SigWebsiteCustom7#]", admin::SigWebsiteCustom7),
    value(u"[#SigWebsiteCustom8#]", admin::SigWebsiteCustom8),
    value(u"[#SigWebsiteCustom9#]", admin::SigWebsiteCustom9),
    value(u"[#SigWebsiteCustom10#]", admin::SigWebsiteCustom10),
    value(u"[#SigWebsiteDisplayName#]", admin::SigWebsiteDisplayName),
    value(u"[#SigWebsiteDisplayNameFR#]", admin::SigWebsiteDisplayNameFR),
    value(u"[#SigGifFile#]", admin::SigGifFile),
    value(u"[#SigGifFile2#]", admin::SigGifFile2),
    value(u"[#SigGifFile3#]", admin::SigGifFile3),
    value(u"[#SigGifFile4#]", admin::SigGifFile4),
    value(u"[#SigGifFile5#]", admin::SigGifFile5),
    value(u"[#SigJPEGFile#]", admin::SigJPEGFile),
    value(u"[#SigJPEGFile2#]", admin::SigJPEGFile2),
    value(u"[#SigJPEGFile3#]", admin::SigJPEGFile3),
    value(u"[#SigJPEGFile4#]", admin::SigJPEGFile4),
    value(u"[#SigJPEGFile5#]", admin::SigJPEGFile5),
};

constexpr MergeBlock signature_field_blocks[] = {
    {When::on(user::SendQuote), with_quote},
    {When::not_on(user::SendQuote), without_quote},
    {When::on(user::RTFOnly), local_files_as_sites},
    {When::always(), full_names},
    {When::empty(admin::SigPosition), without_position},
    {When::always(), positions},
    {When::empty(admin::SigTelephone), without_telephone},
    {When::filled(admin::SigTelephone), with_telephone},
    {When::empty(admin::SigFax), without_fax},
    {When::filled(admin::SigFax), with_fax},
    {When::always(), addresses},
    {When::empty(admin::SigCell), without_cell},
    {When::filled(admin::SigCell), with_cell},
    {When::always(), sites_and_pictures},
};

// The line end comes first in the replacement: the order is exact.
constexpr MergeRow double_breaks[] = {{u"<BR>\r\n<BR>", u"\r\n<BR>"}};
constexpr MergeBlock converted_break_blocks[] = {{When::on(admin::WipeoutRemoveConvertedBR), double_breaks}};

constexpr MergeRow colours[] = {value(u"[#SigBGColor#]", admin::SigBGColor)};
constexpr MergeBlock background_blocks[] = {{When::always(), colours}};

} // namespace

std::span<const MergeBlock> user_codes() { return user_code_blocks; }
std::span<const MergeBlock> signature_fields() { return signature_field_blocks; }
std::span<const MergeBlock> converted_breaks() { return converted_break_blocks; }
std::span<const MergeBlock> background_colour() { return background_blocks; }

} // namespace ornavel::compose
