#include "tests/kills/mail_server.h"

#include "rehearsal/windows/dispatch_server.h"
#include "win32/dispatch_object.h"
#include "win32/registry.h"
#include "win32/wide.h"

#include <objbase.h>

namespace ornavel::kills {
namespace {

constexpr TextView prog_id = u"Outlook.Application";

class Factory final : public win32::Counted<IClassFactory> {
public:
    explicit Factory(host::Objects& client) : client_(client) {}
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
        return answer(wanted == IID_IUnknown || wanted == IID_IClassFactory, object);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return Counted::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return Counted::Release(); }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID wanted, void** object) override {
        *object = nullptr;
        win32::ComPtr<IDispatch> made;
        if (!attempt([&] { made = rehearsal::serve(client_.create(prog_id), subscriptions_); }))
            return E_FAIL;
        return made->QueryInterface(wanted, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    host::Objects& client_;
    std::shared_ptr<rehearsal::Subscriptions> subscriptions_ = std::make_shared<rehearsal::Subscriptions>();
};

} // namespace

MailServer::MailServer(host::Objects& client) {
    CLSID id{};
    CoCreateGuid(&id);
    wchar_t text[39];
    StringFromGUID2(id, text, ARRAYSIZE(text));
    const auto factory = win32::ComPtr<Factory>::adopt(new Factory(client));
    win32::check(CoRegisterClassObject(id, factory.get(), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &cookie_));
    win32::RegistryKey::create(u"Software\\Classes\\" + Text(prog_id) + u"\\CLSID")
        .set(u"", win32::text_of(text));
}

MailServer::~MailServer() {
    CoRevokeClassObject(cookie_);
    attempt([] {
        win32::remove_key(u"Software\\Classes\\" + Text(prog_id) + u"\\CLSID");
        win32::remove_empty_key(u"Software\\Classes\\" + Text(prog_id));
    });
}

} // namespace ornavel::kills
