#pragma once

#include <cstddef>
#include <utility>

namespace brimsound {

/// Holds one reference to a T, or none. Copying retains, destruction releases. A new object starts with one
/// reference, which `adopt` takes over; `retain` adds a reference to an object that has another owner.
template <typename T> class RetainPtr {
public:
    RetainPtr() = default;
    RetainPtr(std::nullptr_t) { }
    RetainPtr(const RetainPtr& other)
        : RetainPtr(other._object)
    {
    }
    RetainPtr(RetainPtr&& other) noexcept
        : _object(std::exchange(other._object, nullptr))
    {
    }
    template <typename U>
    RetainPtr(const RetainPtr<U>& other)
        : RetainPtr(other.get())
    {
    }
    ~RetainPtr()
    {
        if (_object)
            _object->release();
    }

    RetainPtr& operator=(RetainPtr other) noexcept
    {
        std::swap(_object, other._object);
        return *this;
    }

    T* get() const { return _object; }
    T& operator*() const { return *_object; }
    T* operator->() const { return _object; }
    explicit operator bool() const { return _object != nullptr; }

    bool operator==(const RetainPtr& other) const = default;
    bool operator==(const T* other) const { return _object == other; }

private:
    template <typename U> friend RetainPtr<U> adopt(U* object);
    template <typename U> friend RetainPtr<U> retain(U* object);
    template <typename U> friend class RetainPtr;

    explicit RetainPtr(T* object)
        : _object(object)
    {
        if (_object)
            _object->retain();
    }

    T* _object = nullptr;
};

/// Takes over the caller's reference.
template <typename T> RetainPtr<T> adopt(T* object)
{
    RetainPtr<T> pointer;
    pointer._object = object;
    return pointer;
}

/// Adds a reference to an object that also has another owner. Null gives an empty pointer.
template <typename T> RetainPtr<T> retain(T* object)
{
    return RetainPtr<T>(object);
}

/// Creates a T and holds its only reference.
template <typename T, typename... Arguments> RetainPtr<T> make(Arguments&&... arguments)
{
    return adopt(new T(std::forward<Arguments>(arguments)...));
}

} // namespace brimsound
