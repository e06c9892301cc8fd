#pragma once

#include <windows.h>
#include <unknwn.h>
#include <wrl/client.h>

// Reference counting and the one interface of a small COM object.  Objects live in a
// single-threaded apartment and are made with new by a static function of their class.
template <class Interface>
class ComObject : public Interface {
public:
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    virtual ~ComObject() = default; // by Release only

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override {
        if (result == nullptr)
            return E_POINTER;
        const bool known = id == IID_IUnknown || id == __uuidof(Interface);
        *result = known ? static_cast<Interface*>(this) : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }

    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }

    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

protected:
    ComObject() = default;

private:
    ULONG references_ = 1;
};

// Puts a new object into an empty pointer, which takes over its one reference.  Not ComPtr::Attach:
// MinGW-w64's adds a reference of its own.
template <class Interface, class Object>
void AdoptNew(Microsoft::WRL::ComPtr<Interface>& pointer, Object* object) {
    *pointer.GetAddressOf() = object;
}
