#include "shell/add_in.h"

#include "shell/boundary.h"
#include "win32/dispatch_object.h"
#include "win32/environment.h"
#include "win32/values.h"

namespace ornavel::shell {
namespace {

enum Handler : DISPID {
    on_connection = 1,
    on_disconnection,
    on_addins_update,
    on_startup_complete,
    on_begin_shutdown
};

struct HandlerName {
    TextView name;
    Handler handler;
};

constexpr HandlerName handlers[] = {
    {u"OnConnection", on_connection},        {u"OnDisconnection", on_disconnection},
    {u"OnAddInsUpdate", on_addins_update},   {u"OnStartupComplete", on_startup_complete},
    {u"OnBeginShutdown", on_begin_shutdown},
};

DISPID find_member(TextView name) {
    for (const auto& row : handlers)
        if (same_name(row.name, name)) return row.handler;
    return find_callback(name);
}

/// Without a backslash at its end.
Text addin_folder() {
    const Text path = win32::path_of(win32::this_module());
    return path.substr(0, path.find_last_of(u'\\'));
}

} // namespace

connect::Platform Machine::platform(IUnknown* owner) {
    const auto keep = [owner] { return std::make_shared<win32::ComPtr<IUnknown>>(owner); };
    return {.settings = settings_,
            .files = files_,
            .clock = clock_,
            .launcher = launcher_,
            .objects = objects_,
            .windows = windows_,
            .strings = strings_,
            .machine = information_,
            .addin_folder = addin_folder(),
            .application_data = win32::application_data(),
            .user_folder = win32::user_folder(),
            .keep = keep,
            .tray = &tray_};
}

AddIn::~AddIn() {
    if (connected_ == this) connected_ = nullptr;
}

void AddIn::connect(host::Application application, int mode) {
    connected_ = this;
    connect_.OnConnection(std::move(application), mode);
}

void AddIn::disconnect(int remove_mode) {
    if (connected_ == this) connected_ = nullptr;
    connect_.OnDisconnection(remove_mode);
}

HRESULT AddIn::QueryInterface(REFIID wanted, void** object) {
    if (wanted == win32::IID_IRibbonExtensibility && object) {
        *object = static_cast<win32::IRibbonExtensibility*>(&ribbon_);
        AddRef();
        return S_OK;
    }
    return answer(wanted == IID_IUnknown || wanted == IID_IDispatch || wanted == win32::IID_IDTExtensibility2,
                  object);
}

HRESULT AddIn::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT AddIn::GetTypeInfo(UINT, LCID, ITypeInfo**) { return E_NOTIMPL; }

HRESULT AddIn::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    return identify(find_member, names, count, ids);
}

HRESULT AddIn::run_callback(DISPID id, const DISPPARAMS* parameters, VARIANT* result) noexcept {
    return at_boundary(this, [&] {
        if (result) VariantInit(result);
        const host::ObjectPtr asked = host::as_object_or_nothing(argument_of(parameters, 0));
        const host::Value answer = connect_.run_ribbon_callback(id - first_callback, asked);
        if (result) *result = win32::to_variant(answer).release();
    });
}

HRESULT AddIn::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT* result, EXCEPINFO*,
                      UINT*) {
    if (is_callback(id)) return run_callback(id, parameters, result);
    if (id < on_connection || id > on_begin_shutdown) return DISP_E_MEMBERNOTFOUND;
    return at_boundary(this, [&] {
        switch (id) {
        case on_connection:
            connect(host::Application(host::as_object_or_nothing(argument_of(parameters, 0))),
                    host::as_number(argument_of(parameters, 1)));
            break;
        case on_disconnection:
            disconnect(host::as_number(argument_of(parameters, 0)));
            break;
        case on_addins_update:
            connect_.OnAddInsUpdate();
            break;
        case on_startup_complete:
            connect_.OnStartupComplete();
            break;
        default:
            connect_.OnBeginShutdown();
            break;
        }
    });
}

HRESULT AddIn::OnConnection(IDispatch* Application, LONG ConnectMode, IDispatch*, SAFEARRAY**) {
    return at_boundary(this, [&] { connect(host::Application(win32::object_of(Application)), ConnectMode); });
}

HRESULT AddIn::OnDisconnection(LONG RemoveMode, SAFEARRAY**) {
    return at_boundary(this, [&] { disconnect(RemoveMode); });
}

HRESULT AddIn::OnAddInsUpdate(SAFEARRAY**) {
    return at_boundary(this, [&] { connect_.OnAddInsUpdate(); });
}

HRESULT AddIn::OnStartupComplete(SAFEARRAY**) {
    return at_boundary(this, [&] { connect_.OnStartupComplete(); });
}

HRESULT AddIn::OnBeginShutdown(SAFEARRAY**) {
    return at_boundary(this, [&] { connect_.OnBeginShutdown(); });
}

} // namespace ornavel::shell
