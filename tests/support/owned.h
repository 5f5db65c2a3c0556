// Objects of the library deleted at the end of a scope.
#pragma once

#include <type_traits>

// Owns what a create function made and hands it to `Delete` at the end of
// the scope, be it a `void (T**)` that also clears the pointer or a
// `void (T*)`.
template <typename T, auto Delete>
class Owned {
 public:
  explicit Owned(T* object) : object_(object) {}
  ~Owned() {
    if constexpr (std::is_invocable_v<decltype(Delete), T**>) {
      Delete(&object_);
    } else {
      Delete(object_);
    }
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  operator T*() const { return object_; }
  T* operator->() const { return object_; }
  T* get() const { return object_; }

 private:
  T* object_;
};
