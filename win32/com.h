#pragma once

#include "base/text.h"
#include "win32/module_use.h"

#include <windows.h>

#include <oleauto.h>
#include <utility>

namespace ornavel::win32 {

/// Owns a string of automation.
class Bstr {
public:
    Bstr() = default;
    /// Throws std::bad_alloc when there is no memory.
    explicit Bstr(TextView text);
    ~Bstr() { SysFreeString(string_); }
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;

    BSTR get() const { return string_; }
    BSTR release() { return std::exchange(string_, nullptr); }

private:
    BSTR string_ = nullptr;
};

/// A null string is an empty text.
Text text_of_bstr(BSTR string);

/// Owns a value of automation and whatever it holds.
class Variant {
public:
    Variant() { VariantInit(&value_); }
    ~Variant() { VariantClear(&value_); }
    Variant(Variant&& other) noexcept : value_(other.release()) {}
    Variant& operator=(Variant&& other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }

    VARIANT* operator->() { return &value_; }
    VARIANT* address() { return &value_; }
    /// Hands the value over to the caller.
    VARIANT release() {
        VARIANT value = value_;
        VariantInit(&value_);
        return value;
    }

private:
    VARIANT value_;
};

/// Owns one reference to a COM object.
template <class Interface>
class ComPtr {
public:
    ComPtr() = default;
    /// Shares an object that somebody else owns.
    explicit ComPtr(Interface* object) : object_(object) {
        if (object_) object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(other.release()) {}
    ~ComPtr() {
        if (object_) object_->Release();
    }
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that the caller owns.
    static ComPtr adopt(Interface* object) {
        ComPtr owner;
        owner.object_ = object;
        return owner;
    }

    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }
    Interface* release() { return std::exchange(object_, nullptr); }

    /// Where a function of the system stores the object that it gives out; this pointer is empty before.
    Interface** out() { return &object_; }
    void** out_untyped() { return reinterpret_cast<void**>(&object_); }

private:
    Interface* object_ = nullptr;
};

/// A COM object that is made with new, starts with one reference, and ends with its last. As long as it lives
/// the module that it belongs to is in use.
template <class Interface>
class Counted : public Interface {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ULONG STDMETHODCALLTYPE AddRef() override {
        return static_cast<ULONG>(InterlockedIncrement(&references_));
    }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&references_);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

protected:
    virtual ~Counted() = default;

    /// Answers QueryInterface: this object when it has the interface that is asked for.
    HRESULT answer(bool has_interface, void** object) {
        if (!object) return E_POINTER;
        *object = has_interface ? static_cast<Interface*>(this) : nullptr;
        if (!has_interface) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

private:
    ModuleUse use_;
    LONG references_ = 1;
};

} // namespace ornavel::win32
