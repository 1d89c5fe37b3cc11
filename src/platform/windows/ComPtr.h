#pragma once

#include <qt_windows.h>

#include <objbase.h>

#include <memory>

namespace Zandrove::Platform {

/// COM on this thread for the length of a block.
class ComScope final
{
public:
    ComScope()
        : m_result(CoInitialize(nullptr))
    {
    }
    ~ComScope()
    {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    ComScope(const ComScope &) = delete;
    ComScope &operator=(const ComScope &) = delete;

    /// Also where this thread had COM before, in another mode: then it is somebody else's to end.
    [[nodiscard]] bool isUsable() const { return SUCCEEDED(m_result) || m_result == RPC_E_CHANGED_MODE; }

private:
    HRESULT m_result;
};

struct ComReleaser
{
    void operator()(IUnknown *object) const { object->Release(); }
};

/// A reference to a COM object, released with the pointer. One must not outlive its ComScope.
template <typename Interface>
using ComPtr = std::unique_ptr<Interface, ComReleaser>;

template <typename Interface>
[[nodiscard]] ComPtr<Interface> createComObject(const CLSID &classId, const IID &interfaceId)
{
    void *object = nullptr;
    if (FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, interfaceId, &object)))
        return nullptr;
    return ComPtr<Interface>(static_cast<Interface *>(object));
}

template <typename Interface>
[[nodiscard]] ComPtr<Interface> queryInterface(IUnknown &object, const IID &interfaceId)
{
    void *queried = nullptr;
    if (FAILED(object.QueryInterface(interfaceId, &queried)))
        return nullptr;
    return ComPtr<Interface>(static_cast<Interface *>(queried));
}

} // namespace Zandrove::Platform
