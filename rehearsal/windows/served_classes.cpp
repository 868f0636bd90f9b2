#include "rehearsal/windows/served_classes.h"

#include "base/encoding.h"
#include "win32/registry.h"
#include "win32/wide.h"

#include <cstdlib>
#include <objbase.h>

namespace ornavel::rehearsal {
namespace {

constexpr TextView served_prog_ids[] = {u"Redemption.SafeMailItem", u"ADODB.Connection", u"winmgmts",
                                        u"Scripting.FileSystemObject", u"InternetExplorer.Application"};

/// Makes one class of the stand-in mail client; "winmgmts" is asked by moniker instead.
class Factory final : public win32::Counted<IClassFactory>, public IParseDisplayName {
public:
    Factory(MailClient& client, Text prog_id, std::shared_ptr<Subscriptions> subscriptions)
        : client_(client), prog_id_(std::move(prog_id)), subscriptions_(std::move(subscriptions)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        if (wanted != IID_IParseDisplayName)
            return answer(wanted == IID_IUnknown || wanted == IID_IClassFactory, object);
        *object = static_cast<IParseDisplayName*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** object) override {
        *object = nullptr;
        if (outer) return CLASS_E_NOAGGREGATION;
        win32::ComPtr<IDispatch> made;
        if (!attempt([&] { made = serve(client_.create(prog_id_), subscriptions_); })) return E_FAIL;
        return made->QueryInterface(wanted, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx*, LPOLESTR name, ULONG* eaten,
                                               IMoniker** moniker) override {
        const Text whole = win32::text_of(name);
        win32::ComPtr<IDispatch> found;
        if (!attempt([&] { found = serve(client_.get(whole), subscriptions_); })) return MK_E_SYNTAX;
        *eaten = static_cast<ULONG>(whole.size());
        return CreatePointerMoniker(found.get(), moniker);
    }

private:
    MailClient& client_;
    Text prog_id_;
    std::shared_ptr<Subscriptions> subscriptions_;
};

/// Whether the environment asks for the machine's own class instead of the stand-in.
bool is_left_to_the_machine(TextView prog_id) {
    const char* const classes = std::getenv("ORNAVEL_REAL_CLASSES");
    return classes && contains(from_utf8(classes), prog_id);
}

Text to_text(const GUID& id) {
    wchar_t text[39];
    StringFromGUID2(id, text, ARRAYSIZE(text));
    return win32::text_of(text);
}

} // namespace

ServedClasses::ServedClasses(MailClient& client, const std::shared_ptr<Subscriptions>& subscriptions) {
    for (const TextView prog_id : served_prog_ids) {
        if (is_left_to_the_machine(prog_id)) continue;
        CLSID id{};
        CoCreateGuid(&id);
        Taken taken{u"Software\\Classes\\" + Text(prog_id) + u"\\CLSID", {}, 0};
        if (const auto key = win32::RegistryKey::open(taken.key)) taken.class_before = key->text(u"");
        const auto factory = win32::ComPtr<Factory>::adopt(new Factory(client, Text(prog_id), subscriptions));
        CoRegisterClassObject(id, static_cast<IClassFactory*>(factory.get()), CLSCTX_INPROC_SERVER,
                              REGCLS_MULTIPLEUSE, &taken.cookie);
        win32::RegistryKey::create(taken.key).set(u"", to_text(id));
        taken_.push_back(std::move(taken));
    }
}

ServedClasses::~ServedClasses() {
    for (const auto& taken : taken_) {
        CoRevokeClassObject(taken.cookie);
        attempt([&] {
            if (taken.class_before)
                return win32::RegistryKey::create(taken.key).set(u"", *taken.class_before);
            win32::remove_key(taken.key);
            win32::remove_empty_key(taken.key.substr(0, taken.key.find_last_of(u'\\')));
        });
    }
}

} // namespace ornavel::rehearsal
