#pragma once

#include <utility>

namespace platform {

/// Owns one reference of a COM object.
template <typename Interface> class ComPointer
{
public:
    ComPointer() = default;
    ~ComPointer()
    {
        if (m_object)
            m_object->Release();
    }
    ComPointer(ComPointer &&other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    ComPointer(const ComPointer &) = delete;
    ComPointer &operator=(const ComPointer &) = delete;
    ComPointer &operator=(ComPointer &&) = delete;

    Interface *operator->() const { return m_object; }
    /// Where a call puts its result; only for an empty pointer.
    Interface **put() { return &m_object; }
    void **putVoid() { return reinterpret_cast<void **>(&m_object); }

private:
    Interface *m_object = nullptr;
};

} // namespace platform
