#pragma once

#include <cstddef>
#include <utility>

namespace brimsound::toolkit {

/// An object with a reference count. It is created with one reference and destroyed with the last one. An
/// object of another library can belong to it, for example the view of a platform: retaining that object
/// retains this one, and both are destroyed together. For one thread only.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    void retain() const { ++_retainCount; }
    void release() const;
    std::size_t retainCount() const { return _retainCount; }

    /// The object that belongs to this one; may be null.
    void* counterpart() const { return _counterpart; }
    /// `destroy` is called with the counterpart when the last reference is released, before this object is
    /// destroyed.
    void setCounterpart(void*, void (*destroy)(void*));

protected:
    virtual ~Object() = default;

private:
    mutable std::size_t _retainCount = 1;
    mutable void* _counterpart = nullptr;
    void (*_destroy)(void*) = nullptr;
};

/// Holds one reference to a T, or none. `make` creates an object with its first reference, `keep` adds a
/// reference to an existing one.
template <typename T> class Ref {
public:
    Ref() = default;
    Ref(std::nullptr_t) { }
    Ref(const Ref& other)
        : Ref(other._object)
    {
    }
    Ref(Ref&& other) noexcept
        : _object(std::exchange(other._object, nullptr))
    {
    }
    template <typename U>
    Ref(const Ref<U>& other)
        : Ref(other.get())
    {
    }
    ~Ref()
    {
        if (_object)
            _object->release();
    }

    Ref& operator=(Ref other) noexcept
    {
        std::swap(_object, other._object);
        return *this;
    }

    T* get() const { return _object; }
    T& operator*() const { return *_object; }
    T* operator->() const { return _object; }
    explicit operator bool() const { return _object != nullptr; }

    bool operator==(const Ref&) const = default;
    bool operator==(const T* other) const { return _object == other; }

private:
    template <typename U, typename... Arguments> friend Ref<U> make(Arguments&&...);
    template <typename U> friend Ref<U> keep(U*);

    explicit Ref(T* object)
        : _object(object)
    {
        if (_object)
            _object->retain();
    }

    T* _object = nullptr;
};

template <typename T, typename... Arguments> Ref<T> make(Arguments&&... arguments)
{
    Ref<T> first;
    first._object = new T(std::forward<Arguments>(arguments)...);
    return first;
}

/// Null gives an empty reference.
template <typename T> Ref<T> keep(T* object)
{
    return Ref<T>(object);
}

} // namespace brimsound::toolkit
