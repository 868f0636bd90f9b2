#include "compose/merge.h"
#include "fuzz/input.h"
#include "tests/compose/plain_passes.h"

#include <memory>
#include <random>

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

/// A merge with values from the pieces. Its tables take longer to make than many a text to merge, so they are
/// made once, for many worlds.
struct World {
    settings::MemoryStore store;
    compose::Merge merge;
    compose::Passes passes;

    explicit World(unsigned number) : store(made(number)), merge(merge_of(store)), passes(merge.passes()) {}
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    /// Which values there are, and of which pieces, follows from the number; the first world has none.
    static settings::MemoryStore made(unsigned number) {
        settings::MemoryStore store;
        std::minstd_rand chance(number + 1);
        if (number & 1) save(store, settings::user::RTFOnly, u"True");
        if (number & 2) save(store, settings::admin::WipeoutRemoveConvertedBR, u"True");
        for (const settings::Key* key : keys) {
            Text value;
            for (auto left = number == 0 ? 0 : chance() % 4; left > 0; --left)
                value.append(pieces[chance() % std::size(pieces)]);
            if (!value.empty()) save(store, *key, value);
        }
        return store;
    }

    static compose::Merge merge_of(const settings::Store& store) {
#ifdef ORNAVEL_FILE_MERGE
        return compose::Merge::of_signature_file(store);
#else
        return compose::Merge::of_body(store);
#endif
    }
};

const World& world(unsigned number) {
    static const std::vector<std::unique_ptr<World>> worlds = [] {
        std::vector<std::unique_ptr<World>> made;
        for (unsigned next = 0; next < 256; ++next) made.push_back(std::make_unique<World>(next));
        return made;
    }();
    return *worlds[number];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::Input input(bytes, size);
    const World& chosen = world(input.byte());
    const Text text = input.text(pieces);
    Text result = text;
    fuzz::require(chosen.passes.apply(result) == chosen.merge.passes().size());
    fuzz::require(result == compose::plain_passes(text, chosen.merge.passes()));
    return 0;
}
