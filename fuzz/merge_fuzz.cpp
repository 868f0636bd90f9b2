#include "compose/merge.h"
#include "fuzz/input.h"
#include "tests/compose/plain_passes.h"

// The body merge, or with ORNAVEL_FILE_MERGE the signature-file merge, against the plain passes.

namespace {

using namespace ornavel;

constexpr TextView pieces[] = {
    u"[#SigTelephone#]",
    u"[#SigFax#]",
    u"[#SigCell#]",
    u"[#SigPosition#]",
    u"[#SigFaxlabel#]",
    u"[#SigFaxLabel#]",
    u"[#SigCellLabel#]",
    u"<BR>",
    u" <BR>",
    u"<br>",
    u" ",
    u"\r\n",
    u"</FONT>",
    u"</font>",
    u"</B>",
    u"Phone:",
    u"TEL",
    u"Tel:",
    u"Fax:",
    u"FAX",
    u"Cell:",
    u"CELL",
    u"&nbsp;",
    u"[#",
    u"#]",
    u"[",
    u"#",
    u"Sig",
    u"file://",
    u"[#SigEmail#]",
    u"[#SigWebsite#]",
    u"[#SigQuote#]",
    u"mailto:%5b\" \\\\l \"SigEmail#]",
    u"outbind://2/",
    u"[#SigAddress\\hich\\af27\\dbch\\af17\\loch\\f27 2\\hich\\af27\\dbch\\af17\\loch\\f27 #]"};

constexpr const settings::Key* keys[] = {&settings::admin::SigTelephone,
                                         &settings::admin::SigFax,
                                         &settings::admin::SigCell,
                                         &settings::admin::SigPosition,
                                         &settings::admin::SigEmail,
                                         &settings::admin::SigWebsite,
                                         &settings::templates::UserCode1,
                                         &settings::templates::UserSwap1,
                                         &settings::templates::UserCode2,
                                         &settings::templates::UserSwap2,
                                         &settings::admin::SigFaxEmptyStringHTM,
                                         &settings::admin::SigFaxEmptyStringReplaceHTM};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input(bytes, size);
    settings::MemoryStore store;
    const unsigned switches = input.byte();
    if (switches & 1) save(store, settings::user::RTFOnly, u"True");
    if (switches & 2) save(store, settings::admin::WipeoutRemoveConvertedBR, u"True");
    for (std::size_t i = 0; i < std::size(keys); ++i)
        if (switches >> 2 & 1 || input.byte() & 1) save(store, *keys[i], input.text(pieces));
#ifdef ORNAVEL_FILE_MERGE
    const auto merge = compose::Merge::of_signature_file(store);
#else
    const auto merge = compose::Merge::of_body(store);
#endif
    const Text text = input.text(pieces);
    Text result = text;
    if (merge.apply(result) > 0) std::abort();
    fuzz::require(result == compose::plain_passes(text, merge.passes()));
    return 0;
}
