#include "compose/signatures.h"

#include <gtest/gtest.h>

namespace ornavel::compose {
namespace {

using namespace settings;

TEST(TextSignature, HasTwoColumnsWhoseValuesLineUp) {
    MemoryStore store;
    for (const auto& [key, value] : {std::pair<const Key&, TextView>{admin::SigFullname, u"Jo Marlow"},
                                     {admin::SigOrganizationName, u"Marlow"},
                                     {admin::SigWebsite, u"www.example.com"},
                                     {admin::SigPosition, u"Gardener"},
                                     {admin::SigEmail, u"jo@example.com"},
                                     {admin::SigAddress, u"Orchard Lane"},
                                     {admin::SigTelephone, u"1"},
                                     {admin::SigAddress2, u"Hale"},
                                     {admin::Sigfax, u"2"},
                                     {admin::SigAddress3, u"Kent"},
                                     {admin::SigCell, u"3"},
                                     {admin::SigAddress4, u"England"}})
        save(store, key, value);
    EXPECT_EQ(text_signature(store), u"Jo Marlow<br>"
                                     u"Marlow&nbsp;www.example.com<br>"
                                     u"Gardener&nbsp;jo@example.com<br>"
                                     u"Orchard Lane&nbsp;Telephone: 1<br>"
                                     u"Hale&nbsp;Fax:       2<br>"
                                     u"Kent&nbsp;Cell:      3<br>"
                                     u"England<br>");
}

TEST(TextSignature, HasABlankWhereThereIsNoValue) {
    Text lines = u"&nbsp;<br>";
    for (int i = 0; i < 5; ++i) lines += u"&nbsp;&nbsp;&nbsp;<br>";
    EXPECT_EQ(text_signature(MemoryStore()), lines + u"&nbsp;<br>");
}

} // namespace
} // namespace ornavel::compose
