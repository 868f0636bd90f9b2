#include "compose/merge_rows.h"

// The rows of the signature-file merge. Here the labels have no default, and what goes with an empty fax or
// cell number is a setting.

namespace ornavel::compose {
namespace {

using namespace settings;

/// Without the label's default of the body merge: the file has its own word where no label is set.
constexpr MergeRow label(TextView search, const TextKey& key) { return {search, {}, &key, {}}; }

constexpr MergeRow rule(const TextKey& search, const TextKey& replacement) {
    return {{}, {}, &replacement, replacement.default_value, &search};
}

constexpr MergeRow names_and_labels[] = {
    value(u"[#SigFullname#]", admin::SigFullname),
    value(u"[#SigFullnameFR#]", admin::SigFullnameFR),
    value(u"[#SigOrganizationName#]", admin::SigOrganizationName),
    value(u"[#SigOrganizationNameFR#]", admin::SigOrganizationNameFR),
    value(u"[#SigDivision#]", admin::SigDivision),
    value(u"[#SigDivisionFR#]", admin::SigDivisionFR),
    value(u"[#SigBranch#]", admin::SigBranch),
    value(u"[#SigBranchFR#]", admin::SigBranchFR),
    value(u"[#SigPosition#]", admin::SigPosition),
    value(u"[#SigPositionFR#]", admin::SigPositionFR),
    value(u"[#SigTelephone#]", admin::SigTelephone),
    label(u"[#SigTelephoneLabel#]", admin::SigTelephoneLabel),
    label(u"[#SigFaxLabel#]", admin::SigFaxLabel),
    label(u"[#SigCellLabel#]", admin::SigCellLabel),
    label(u"[#SigPositionLabel#]", admin::SigPositionLabel),
    label(u"[#SigDivisionLabel#]", admin::SigDivisionLabel),
    label(u"[#SigBranchLabel#]", admin::SigBranchLabel),
};

constexpr MergeRow without_fax[] = {
    rule(admin::SigFaxEmptyStringHTM, admin::SigFaxEmptyStringReplaceHTM),
    rule(admin::SigFaxEmptyStringRTFTXT, admin::SigFaxEmptyStringReplaceRTFTXT),
    {u"[#SigFax#]", u""},
};
constexpr MergeRow with_fax[] = {value(u"[#SigFax#]", admin::SigFax)};

constexpr MergeRow without_cell[] = {
    rule(admin::SigCellEmptyStringHTM, admin::SigCellEmptyStringReplaceHTM),
    rule(admin::SigCellEmptyStringRTFTXT, admin::SigCellEmptyStringReplaceRTFTXT),
    {u"[#SigCell#]", u""},
};
constexpr MergeRow with_cell[] = {value(u"[#SigCell#]", admin::SigCell)};

// Backslashes and quotes stand exactly as a word processor leaves them in a link that it split at the hash.
constexpr MergeRow links_and_addresses[] = {
    {uR"(mailto:%5b" \\l "SigEmail#])", u"mailto:", &admin::SigEmail},
    value(uR"(file:///C:\\\\Program%20Files\\\\Brevant\\\\Ornavel\\\\Signatures\\\\%5b" \\l "SigWebsite#])",
          admin::SigWebsite),
    value(u"outbind://2/[#SigWebsite#]", admin::SigWebsite),
    value(u"[#SigEmail#]", admin::SigEmail),
    value(u"[#SigWebsite#]", admin::SigWebsite),
    value(u"[#SigWebsiteFR#]", admin::SigWebsiteFR),
    value(u"[#SigWebsiteDisplayName#]", admin::SigWebsiteDisplayName),
    value(uR"([#SigWebsiteDispl\hich\af27\dbch\af17\loch\f27 ayName#])", admin::SigWebsiteDisplayName),
    value(u"[#SigWebsiteDisplayNameFR#]", admin::SigWebsiteDisplayNameFR),
    value(u"[#SigAddress#]", admin::SigAddress),
    value(u"[#SigAddress2#]", admin::SigAddress2),
    value(u"[#SigAddress3#]", admin::SigAddress3),
    value(u"[#SigAddress4#]", admin::SigAddress4),
    value(u"[#SigAddressFR#]", admin::SigAddressFR),
    value(u"[#SigAddress2FR#]", admin::SigAddress2FR),
    value(u"[#SigAddress3FR#]", admin::SigAddress3FR),
    value(u"[#SigAddress4FR#]", admin::SigAddress4FR),
    value(uR"([#SigAddress\hich\af27\dbch\af17\loch\f27 2\hich\af27\dbch\af17\loch\f27 #])",
          admin::SigAddress2),
    value(uR"([#SigAddress\hich\af27\dbch\af17\loch\f27 3\hich\af27\dbch\af17\loch\f27 #])",
          admin::SigAddress3),
    value(uR"([#SigAddress\hich\af27\dbch\af17\loch\f27 4\hich\af27\dbch\af17\loch\f27 #])",
          admin::SigAddress4),
    {u"#SigEmail#]", u""},
    {u"#SigWebsite#]", u""},
};

constexpr MergeBlock blocks[] = {
    {When::always(), names_and_labels},        {When::empty(admin::SigFax), without_fax},
    {When::filled(admin::SigFax), with_fax},   {When::empty(admin::SigCell), without_cell},
    {When::filled(admin::SigCell), with_cell}, {When::always(), links_and_addresses},
};

} // namespace

std::span<const MergeBlock> signature_file_fields() { return blocks; }

} // namespace ornavel::compose
