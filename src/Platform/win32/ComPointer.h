#pragma once

namespace Platform {

// Owns one reference to a COM object.
template <class Interface>
class ComPointer {
public:
    ComPointer() = default;
    ~ComPointer() { reset(); }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;
    ComPointer(ComPointer&& other) noexcept : m_object(other.m_object) { other.m_object = nullptr; }
    ComPointer& operator=(ComPointer&& other) noexcept {
        if (this != &other) {
            reset();
            m_object = other.m_object;
            other.m_object = nullptr;
        }
        return *this;
    }

    Interface* get() const { return m_object; }
    Interface* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

    // For functions that store a new reference; releases the old one.
    Interface** put() {
        reset();
        return &m_object;
    }

    void reset() {
        if (m_object)
            m_object->Release();
        m_object = nullptr;
    }

private:
    Interface* m_object = nullptr;
};

}
