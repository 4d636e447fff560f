#pragma once

#include <memory>
#include <objbase.h>

namespace thisapp::desktop {

/// The calling thread may use the system's objects while this lives. They may be used already.
class ComUse
{
public:
    ComUse() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComUse()
    {
        if (SUCCEEDED(m_result))
            ::CoUninitialize();
    }
    ComUse(const ComUse&) = delete;
    ComUse& operator=(const ComUse&) = delete;

private:
    HRESULT m_result;
};

struct ComRelease
{
    void operator()(IUnknown* object) const { object->Release(); }
};

template <class Interface>
using ComPointer = std::unique_ptr<Interface, ComRelease>;

/// Empty when the system has no such object.
template <class Interface>
ComPointer<Interface> makeObject(const CLSID& kind)
{
    void* object = nullptr;
    const HRESULT made =
        ::CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), &object);
    return ComPointer<Interface>(SUCCEEDED(made) ? static_cast<Interface*>(object) : nullptr);
}

/// Another interface of the object; empty when it has none such.
template <class Interface>
ComPointer<Interface> queryInterface(IUnknown& object)
{
    void* other = nullptr;
    const HRESULT found = object.QueryInterface(__uuidof(Interface), &other);
    return ComPointer<Interface>(SUCCEEDED(found) ? static_cast<Interface*>(other) : nullptr);
}

} // namespace thisapp::desktop
