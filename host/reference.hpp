#pragma once

#include <utility>

#include "host/runtime.hpp"

namespace velvault12 {

namespace reference_details {

// Not inlined: a reference is taken and given up in more places than anything else happens.
void retain(id object);
void release(id object);
void autorelease(id object);

}  // namespace reference_details

/// Owns one reference to a host object: retains it while the Ref lives. Empty for nil.
template <class View>
class Ref {
 public:
  Ref() = default;
  explicit Ref(View object) : object_(object) { reference_details::retain(object_.get()); }
  Ref(const Ref& other) : Ref(other.object_) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, View())) {}
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  // Through a local: the release may run the host's code, and that may come back to this very Ref.
  ~Ref() { reference_details::release(std::exchange(object_, View()).get()); }

  /// Takes over a reference that the caller already owns (what `init`, `copy` and `new` answer).
  static Ref adopt(View owned) {
    Ref ref;
    ref.object_ = owned;
    return ref;
  }

  View get() const { return object_; }
  const View* operator->() const { return &object_; }
  explicit operator bool() const { return static_cast<bool>(object_); }

  /// Gives the reference up to the current autorelease pool: for what a hook answers to its host.
  View autorelease() && {
    const View object = std::exchange(object_, View());
    reference_details::autorelease(object.get());
    return object;
  }

 private:
  View object_;
};

/// A new object of the view's class by `alloc` and an initializer, whose parameters are of the arguments'
/// types; empty where the host lacks the class or the initializer answers nil.
template <class View, Name Initializer = "init", class... Arguments>
Ref<View> makeObject(Arguments... arguments) {
  const auto allocated = View(sendToClass<"alloc", id()>(View::hostClass()));
  return Ref<View>::adopt(allocated.template send<Initializer, View(Arguments...)>(arguments...));
}

/// Everything autoreleased while it lives goes with it: for code that the host calls outside its own pools.
class AutoreleasePool {
 public:
  AutoreleasePool() : pool_(sendToClass<"new", id()>(classNamed<"NSAutoreleasePool">())) {}
  ~AutoreleasePool() { Object(pool_).send<"drain", void()>(); }
  AutoreleasePool(const AutoreleasePool&) = delete;
  AutoreleasePool& operator=(const AutoreleasePool&) = delete;

 private:
  id pool_;
};

}  // namespace velvault12
