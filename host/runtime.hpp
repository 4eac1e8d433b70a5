#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

// The Objective-C runtime from C++. Two runtimes differ, in how a message finds its method, in what BOOL is
// and in whether blocks are objects; this file alone knows. Nothing else of the runtime's headers is needed,
// so no platform SDK is.

extern "C" {
struct objc_object;
struct objc_class;
struct objc_selector;
struct objc_method;
struct objc_ivar;
}

namespace velvault12 {

/// The runtime's own names, as every host signature spells them.
using id = objc_object*;
using Class = objc_class*;
using SEL = const objc_selector*;
using IMP = void (*)();

#if defined(__APPLE__)
using ObjcBool = bool;
inline constexpr bool kBlocksAreObjects = true;
#else
using ObjcBool = unsigned char;
inline constexpr bool kBlocksAreObjects = false;
#endif

extern "C" {
Class objc_getClass(const char* name);
const char* class_getName(Class type);
SEL sel_registerName(const char* name);
objc_method* class_getInstanceMethod(Class type, SEL selector);
const char* method_getTypeEncoding(objc_method* method);
ObjcBool class_addMethod(Class type, SEL selector, IMP implementation, const char* encoding);
Class objc_allocateClassPair(Class superclass, const char* name, std::size_t extraBytes);
ObjcBool class_addIvar(Class type, const char* name, std::size_t size, std::uint8_t alignment,
                       const char* encoding);
void objc_registerClassPair(Class type);
objc_ivar* class_getInstanceVariable(Class type, const char* name);
id object_getIvar(id object, objc_ivar* variable);
void object_setIvar(id object, objc_ivar* variable, id value);
#if defined(__APPLE__)
Class object_getClass(id object);
void objc_msgSend();
#else
IMP objc_msg_lookup(id receiver, SEL selector);
#endif
}

#if !defined(__APPLE__)
/// This runtime has it in its headers only: an object begins with its class.
inline Class object_getClass(id object) {
  return object == nullptr ? nullptr : *reinterpret_cast<Class*>(object);
}
#endif

/// A string as a template argument: how selectors and class names are spelled in this code.
template <std::size_t Size>
struct Name {
  // NOLINTNEXTLINE(google-explicit-constructor): a literal is to be written where a name is asked for.
  consteval Name(const char (&literal)[Size]) {
    for (std::size_t i = 0; i < Size; ++i) text[i] = literal[i];
  }
  char text[Size];
};

/// What the runtime knows under that name, asked for at its first use. Only what was found is remembered. Any
/// thread.
template <auto Find, Name Text>
auto knownAs() {
  static constinit std::atomic<decltype(Find(Text.text))> cached{nullptr};
  auto known = cached.load(std::memory_order_relaxed);
  if (known == nullptr) {
    known = Find(Text.text);
    cached.store(known, std::memory_order_relaxed);
  }
  return known;
}

template <Name Text>
SEL selector() {
  return knownAs<sel_registerName, Text>();
}

/// The host's class of that name, or null: it may come with a framework that is loaded later.
template <Name Text>
Class classNamed() {
  return knownAs<objc_getClass, Text>();
}

class Object;

/// How a C++ type travels in a message: `bool` as the host's BOOL, a typed view as its object, the rest as it
/// is.
template <class T>
struct Wire {
  using Type = T;
  static Type to(T value) { return value; }
  static T from(Type value) { return value; }
};

template <>
struct Wire<bool> {
  using Type = ObjcBool;
  static Type to(bool value) { return static_cast<ObjcBool>(value); }
  static bool from(Type value) { return value != 0; }
};

template <class T>
requires std::is_base_of_v<Object, T>
struct Wire<T> {
  using Type = id;
  static Type to(T value) { return value.get(); }
  static T from(Type value) { return T(value); }
};

template <>
struct Wire<void> {
  using Type = void;
};

/// The method that a message to the receiver runs. The receiver is not null.
template <class Function>
Function* methodFor([[maybe_unused]] id receiver, [[maybe_unused]] SEL selector) {
#if defined(__APPLE__)
  return reinterpret_cast<Function*>(objc_msgSend);
#else
  return reinterpret_cast<Function*>(objc_msg_lookup(receiver, selector));
#endif
}

template <class Signature>
struct Message;

/// Sends messages of one type; the type's own result and parameters decide the calling convention.
template <class Result, class... Parameters>
struct Message<Result(Parameters...)> {
  static Result send(id receiver, SEL selector, Parameters... arguments) {
    using Function = typename Wire<Result>::Type(id, SEL, typename Wire<Parameters>::Type...);
    // Only one of the two runtimes answers zero for every type of result.
    if (receiver == nullptr) return Result();
    Function* const method = methodFor<Function>(receiver, selector);
    if constexpr (std::is_void_v<Result>) {
      method(receiver, selector, Wire<Parameters>::to(arguments)...);
    } else {
      return Wire<Result>::from(method(receiver, selector, Wire<Parameters>::to(arguments)...));
    }
  }
};

/// A host object, or nil. A value that does not own: keep it in a `Ref` to keep the object alive. Typed views
/// derive from it, bear their host class's name and add its methods; a message to nil does nothing and
/// answers zero.
class Object {
 public:
  constexpr Object() = default;
  constexpr explicit Object(id object) : object_(object) {}

  constexpr id get() const { return object_; }
  constexpr explicit operator bool() const { return object_ != nullptr; }
  /// Whether both are the same object, not equal ones.
  friend constexpr bool operator==(Object a, Object b) { return a.object_ == b.object_; }

  /// Sends a message that every object of the view's class understands.
  template <Name Selector, class Signature, class... Arguments>
  auto send(Arguments&&... arguments) const {
    return Message<Signature>::send(object_, selector<Selector>(), std::forward<Arguments>(arguments)...);
  }

  /// Sends a message that a receiver may lack: one without the method answers as nil would.
  template <Name Selector, class Signature, class... Arguments>
  auto trySend(Arguments&&... arguments) const {
    const id receiver = responds<Selector>() ? object_ : nullptr;
    return Message<Signature>::send(receiver, selector<Selector>(), std::forward<Arguments>(arguments)...);
  }

  template <Name Selector>
  bool responds() const {
    return respondsTo(selector<Selector>());
  }

  /// Whether it takes the message, its own methods aside also one that it hands on to another object.
  template <Name Selector>
  bool understands() const {
    return responds<Selector>() || send<"methodSignatureForSelector:", Object(SEL)>(selector<Selector>());
  }

  bool isKindOf(Class type) const;

  /// The object seen as a `View`, or nil when it is of another class: for what came out of a file or a
  /// message.
  template <class View>
  View as() const {
    return isKindOf(View::hostClass()) ? View(object_) : View();
  }

  /// What an instance variable of that name holds, one declared by `ClassPair::variable`: a new object has
  /// nil there. Nothing is retained.
  template <Name Variable>
  Object variable() const {
    return Object(object_ == nullptr ? nullptr : object_getIvar(object_, variableNamed<Variable>()));
  }
  template <Name Variable>
  void setVariable(Object value) const {
    if (object_ != nullptr) object_setIvar(object_, variableNamed<Variable>(), value.get());
  }

  /// The name of the object's class, "" for nil.
  const char* className() const {
    const Class type = send<"class", Class()>();
    return type == nullptr ? "" : class_getName(type);
  }

 private:
  template <Name Variable>
  objc_ivar* variableNamed() const {
    return class_getInstanceVariable(object_getClass(object_), Variable.text);
  }

  bool respondsTo(SEL selector) const;

  id object_ = nullptr;
};

/// The base of a typed view of one host class: `class UILabel : public HostClass<"UILabel", UIView>`.
template <Name ClassName, class Super = Object>
class HostClass : public Super {
 public:
  using Super::Super;
  /// The class itself, null where the host lacks it.
  static Class hostClass() { return classNamed<ClassName>(); }
};

/// A message to a class itself. A class that the host lacks answers zero.
template <Name Selector, class Signature, class... Arguments>
auto sendToClass(Class type, Arguments&&... arguments) {
  return Message<Signature>::send(reinterpret_cast<id>(type), selector<Selector>(),
                                  std::forward<Arguments>(arguments)...);
}

/// The same for a method that the class may lack: without it, it answers zero as well.
template <Name Selector, class Signature, class... Arguments>
auto trySendToClass(Class type, Arguments&&... arguments) {
  return Object(reinterpret_cast<id>(type))
      .trySend<Selector, Signature>(std::forward<Arguments>(arguments)...);
}

}  // namespace velvault12
