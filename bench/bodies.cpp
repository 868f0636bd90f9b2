#include "bench/bodies.h"

#include <random>

namespace ornavel::bench {
namespace {

constexpr TextView words[] = {u"the",     u"quick", u"order",  u"of",    u"Tuesday", u"figures", u"attached",
                              u"meeting", u"will",  u"please", u"Phone", u"and",     u"Fax",     u"confirm"};

void append_paragraph(Text& text, std::mt19937& random) {
    text += u"<P class=MsoNormal><FONT face=\"Times New Roman\" size=3>";
    for (std::size_t i = random() % 30 + 5; i > 0; --i)
        text.append(words[random() % std::size(words)]).append(u" ");
    text += random() % 3 == 0 ? u"</FONT><BR>\r\n" : u"</FONT></P>\r\n";
}

} // namespace

Text signature() {
    return u"<P><FONT face=\"Verdana\"><B>[#SigFullname#]</B><BR>\r\n[#SigPosition#]<BR>\r\n"
           u"[#SigOrganizationName#]<BR>\r\n[#SigAddress#]<BR>\r\n[#SigAddress2#]<BR>\r\n"
           u"Phone:</FONT> [#SigTelephone#]<BR>\r\nFax: [#SigFax#]<BR>\r\nCell: [#SigCell#]<BR>\r\n"
           u"<A href=\"mailto:[#SigEmail#]\">[#SigEmail#]</A><BR>\r\n"
           u"<A href=\"http://[#SigWebsite#]\">[#SigWebsiteDisplayName#]</A>[#SigQuote#]</P>\r\n";
}

Text typical_body(std::size_t bytes) {
    std::mt19937 random(1);
    Text text = u"<HTML><BODY bgColor=\"[#SigBGColor#]\" background=\"[#SigGifFile#]\">\r\n";
    while ((text.size() + signature().size()) * 2 < bytes) append_paragraph(text, random);
    return text + signature() + u"</BODY></HTML>\r\n";
}

Text repeated(TextView piece, std::size_t bytes) {
    Text text;
    while (text.size() * 2 < bytes) text.append(piece);
    return text;
}

Text body_with_images(std::size_t bytes) {
    std::mt19937 random(2);
    Text text = u"<style>p { margin: 0 }</style>";
    while (text.size() * 2 < bytes) {
        append_paragraph(text, random);
        text +=
            random() % 2 == 0 ? u"<IMG src=\"cid:1\" alt=\"logo\" width=10>" : u"<img src=\"picture.gif\">";
    }
    return text;
}

Text distinct_addresses(std::size_t bytes) {
    std::mt19937 random(3);
    Text text;
    for (int number = 0; text.size() * 2 < bytes; ++number)
        text += u"www." + Text(words[random() % std::size(words)]) + to_text(number) + u".example.com/" +
                Text(words[random() % std::size(words)]) + u"/index.htm ";
    return text;
}

void fill_signature(settings::Store& store) {
    using namespace settings;
    save(store, admin::SigFullname, u"Jo Sender");
    save(store, admin::SigPosition, u"Director of Figures");
    save(store, admin::SigOrganizationName, u"Example Company");
    save(store, admin::SigAddress, u"1 Example Street");
    save(store, admin::SigEmail, u"jo@example.com");
    save(store, admin::SigWebsite, u"www.example.com");
    save(store, admin::SigWebsiteDisplayName, u"Example");
}

} // namespace ornavel::bench
