#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <type_traits>
#include <utility>

#include "host/THandleCommon.h"

/// A reference-counted handle: the object dies with its last handle. Handles are equal when they
/// hold the same object, or none.
///
/// Handles to one object may be copied and destroyed in several threads at once; a single handle,
/// like any value, belongs to one thread at a time. T may be incomplete where a handle is only
/// held.
template <class T>
class THandle {
public:
    /// Holds no object.
    /// @{
    THandle() = default;
    THandle(std::nullptr_t) {}
    /// @}
    /// Takes ownership of `object`, which may be null.
    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    explicit THandle(U* object) : object_(object) {}
    /// Shares the object of a handle to a subclass, or takes it and leaves that handle null.
    /// @{
    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    THandle(const THandle<U>& other) : object_(other.object_) {}
    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    THandle(THandle<U>&& other) noexcept : object_(std::move(other.object_)) {}
    /// @}

    /// Raises THandleCommon::null_handle_error() when the handle is null.
    /// @{
    T* operator->() const { return checked(); }
    T& operator*() const { return *checked(); }
    /// @}

    bool is_null() const { return !object_; }              ///< Whether it holds no object.
    explicit operator bool() const { return !is_null(); }  ///< Whether it holds an object.
    /// The object or nullptr; the handle keeps the ownership.
    T* get() const { return object_.get(); }

    template <class U>
    friend bool operator==(const THandle& a, const THandle<U>& b) {
        return a.get() == b.get();
    }

    template <class U, class... Arguments>
    friend THandle<U> make_handle(Arguments&&... arguments);
    template <class U, class Owner>
    friend THandle<U> make_part_handle(const THandle<Owner>& owner, U* part);

private:
    template <class U>
    friend class THandle;

    explicit THandle(std::shared_ptr<T> object) : object_(std::move(object)) {}

    T* checked() const {
        if (!object_) THandleCommon::null_handle_error();
        return object_.get();
    }

    std::shared_ptr<T> object_;
};

/// A handle to a new T made from the arguments, with one allocation for object and count.
template <class T, class... Arguments>
THandle<T> make_handle(Arguments&&... arguments) {
    return THandle<T>(std::make_shared<T>(std::forward<Arguments>(arguments)...));
}

/// A handle to a part of the owner's object, which lives until the last handle to it or a part of
/// it.
template <class U, class Owner>
THandle<U> make_part_handle(const THandle<Owner>& owner, U* part) {
    return THandle<U>(std::shared_ptr<U>(owner.object_, part));
}

/// Prints the object; raises the null-handle error when there is none.
template <class T>
requires requires(std::ostream& os, const T& object) { os << object; }
std::ostream& operator<<(std::ostream& os, const THandle<T>& handle) { return os << *handle; }
