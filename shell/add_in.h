#pragma once

#include "connect/connect.h"
#include "shell/ribbon_face.h"
#include "win32/com.h"
#include "win32/com_objects.h"
#include "win32/extensibility.h"
#include "win32/machine.h"
#include "win32/notification_icon.h"
#include "win32/registry_store.h"
#include "win32/system_information.h"
#include "win32/this_module.h"
#include "win32/windows_files.h"

namespace ornavel::shell {

/// The machine that the add-in runs on: the real one.
class Machine {
public:
    /// The owner is the object that this machine is a part of.
    connect::Platform platform(IUnknown* owner);

private:
    win32::RegistryStore settings_;
    win32::WindowsFiles files_;
    win32::SystemClock clock_;
    win32::ShellLauncher launcher_;
    win32::ComObjects objects_;
    win32::DesktopWindows windows_;
    win32::ResourceStrings strings_{win32::this_module()};
    win32::WindowsInformation information_;
    win32::NotificationIcon tray_;
};

/// The class that the mail client creates. Whatever happens inside, its handlers answer S_OK.
class AddIn final : public win32::Counted<win32::IDTExtensibility2> {
public:
    ~AddIn() override;
    /// The one that is connected to the mail client in this process; null where none is.
    static AddIn* connected() { return connected_; }
    connect::Connect& connection() { return connect_; }
    /// Runs the callback of the ribbon with this number. Whatever is passed, it ends well.
    HRESULT run_callback(DISPID id, const DISPPARAMS* parameters, VARIANT* result) noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD how,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* bad_argument) override;

    HRESULT STDMETHODCALLTYPE OnConnection(IDispatch* Application, LONG ConnectMode, IDispatch* AddInInst,
                                           SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnDisconnection(LONG RemoveMode, SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) override;
    HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) override;

private:
    void connect(host::Application application, int mode);
    void disconnect(int remove_mode);

    static inline AddIn* connected_ = nullptr;

    Machine machine_;
    connect::Connect connect_{machine_.platform(this)};
    RibbonFace ribbon_{*this};
};

} // namespace ornavel::shell
