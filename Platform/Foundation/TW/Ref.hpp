#pragma once

#include "TW/Exceptions.hpp"

#include <atomic>
#include <compare>
#include <concepts>
#include <functional>
#include <utility>

namespace TW {

/// The count of the references to an object, kept in the object itself. Every class that is held by `Ref` derives from
/// it. An object that no `Ref` holds (one on the stack, say) is not counted and simply follows its own lifetime.
class Counted {
 public:
  Counted() noexcept = default;
  Counted(const Counted&) noexcept {}
  Counted& operator=(const Counted&) noexcept { return *this; }

  unsigned int GetReferenceCount() const noexcept { return references_.load(std::memory_order_acquire); }

 protected:
  ~Counted() = default;

 private:
  template <class T>
  friend class Ref;

  void AddReference() const noexcept { references_.fetch_add(1, std::memory_order_relaxed); }
  bool RemoveLastReference() const noexcept { return references_.fetch_sub(1, std::memory_order_acq_rel) == 1; }

  mutable std::atomic<unsigned int> references_{0};
};

/// A counted pointer that checks: following an empty one throws `NullReferenceException`. The object goes with its last
/// reference. References to one object may be made and dropped on any thread; one `Ref` belongs to one thread at a
/// time.
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  /// Shares `object`, which must have been made by `new`; it may be null.
  explicit Ref(T* object) noexcept : object_(object) { Share(); }
  Ref(const Ref& other) noexcept : object_(other.object_) { Share(); }
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  template <class Derived>
    requires std::derived_from<Derived, T>
  Ref(const Ref<Derived>& other) noexcept : object_(other.Get()) {
    Share();
  }
  template <class Derived>
    requires std::derived_from<Derived, T>
  Ref(Ref<Derived>&& other) noexcept : object_(other.Detach()) {}
  ~Ref() { Drop(); }

  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }

  /// The object or null, unchecked.
  T* Get() const noexcept { return object_; }
  T* operator->() const { return Checked(); }
  T& operator*() const { return *Checked(); }
  explicit operator bool() const noexcept { return object_ != nullptr; }

  /// Gives the object up without dropping its reference, for `Attach` elsewhere.
  [[nodiscard]] T* Detach() noexcept { return std::exchange(object_, nullptr); }
  /// Takes over a reference that `Detach` gave up.
  static Ref Attach(T* object) noexcept {
    Ref attached;
    attached.object_ = object;
    return attached;
  }

  /// The same object as another class, or an empty reference when it is not of that class.
  template <class Other>
  Ref<Other> DynamicCast() const noexcept {
    return Ref<Other>(dynamic_cast<Other*>(object_));
  }
  /// The same object as another class; throws `ClassCastException` when it is not of that class. Empty stays empty.
  template <class Other>
  Ref<Other> CheckedCast() const {
    Ref<Other> cast = DynamicCast<Other>();
    if (object_ != nullptr && !cast) throw ClassCastException();
    return cast;
  }

  friend bool operator==(const Ref& left, const Ref& right) noexcept { return left.object_ == right.object_; }

 private:
  T* Checked() const {
    if (object_ == nullptr) [[unlikely]]
      throw NullReferenceException();
    return object_;
  }
  void Share() const noexcept {
    if (object_ != nullptr) static_cast<const Counted*>(object_)->AddReference();
  }
  void Drop() noexcept {
    if (object_ != nullptr && static_cast<const Counted*>(object_)->RemoveLastReference()) delete object_;
  }

  T* object_ = nullptr;
};

/// Makes an object and the first reference to it.
template <class T, class... Arguments>
Ref<T> MakeRef(Arguments&&... arguments) {
  return Ref<T>(new T(std::forward<Arguments>(arguments)...));
}

}  // namespace TW
