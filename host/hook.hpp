#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

#include "host/encoding.hpp"
#include "host/runtime.hpp"

namespace velvault12 {

/// What a hook replaced, bound to the object that the hook was called for: `host(argument)` runs the host's
/// own method. Where nothing was replaced it does nothing and answers zero. It may be copied and called
/// later, for as long as the object lives.
template <class Signature>
class Replaced;

template <class Result, class... Parameters>
class Replaced<Result(Parameters...)> {
 public:
  using Function = typename Wire<Result>::Type(id, SEL, typename Wire<Parameters>::Type...);

  Replaced(id receiver, SEL selector, IMP implementation)
      : receiver_(receiver), selector_(selector), function_(reinterpret_cast<Function*>(implementation)) {}

  Result operator()(Parameters... arguments) const {
    if (function_ == nullptr) return Result();
    if constexpr (std::is_void_v<Result>) {
      function_(receiver_, selector_, Wire<Parameters>::to(arguments)...);
    } else {
      return Wire<Result>::from(function_(receiver_, selector_, Wire<Parameters>::to(arguments)...));
    }
  }

 private:
  id receiver_;
  SEL selector_;
  Function* function_;
};

/// One change to the host: a method replaced or added.
struct HookRow {
  const char* className;
  const char* selector;
  /// Of the method, in the way that the runtime writes it.
  const char* encoding;
  bool isAdded;
  void (*install)(const HookRow& row);
};

/// Installs the rows in their order. A class or a replaced method that the host lacks is passed over, and so
/// is a method that is called in another way than the row's encoding says: its replacement would read
/// arguments that nobody passed.
void installHooks(std::span<const HookRow> rows);

namespace hook_details {

enum class MethodOf { instance, type };

/// Whether a method with that result and these parameters has that type encoding.
template <class Result, class... Parameters>
consteval bool hasEncoding(std::string_view encoding) {
  const auto take = [&encoding](std::string_view part) {
    if (part.empty() || !encoding.starts_with(part)) return false;
    encoding.remove_prefix(part.size());
    return true;
  };
  constexpr std::string_view kReceiverAndSelector = "@:";
  return take(kEncoding<Result>) && take(kReceiverAndSelector) && (take(kEncoding<Parameters>) && ...) &&
         encoding.empty();
}

void replaceMethod(const HookRow& row, MethodOf owner, IMP implementation, IMP* replaced);
void addMethod(const HookRow& row, IMP implementation);

template <auto Function, class Type = decltype(Function)>
struct Replacement;

/// The C function that stands in for the host's method, and the one slot that keeps what it replaced.
template <auto Function, class Receiver, class Result, class... Parameters>
struct Replacement<Function, Result (*)(Receiver, Replaced<Result(Parameters...)>, Parameters...)> {
  using Host = Replaced<Result(Parameters...)>;
  static inline constinit IMP slot = nullptr;

  static typename Wire<Result>::Type call(id self, SEL selector,
                                          typename Wire<Parameters>::Type... arguments) {
    const Host host(self, selector, slot);
    if constexpr (std::is_void_v<Result>) {
      Function(Receiver(self), host, Wire<Parameters>::from(arguments)...);
    } else {
      return Wire<Result>::to(Function(Receiver(self), host, Wire<Parameters>::from(arguments)...));
    }
  }

  template <MethodOf Owner>
  static void install(const HookRow& row) {
    replaceMethod(row, Owner, reinterpret_cast<IMP>(&call), &slot);
  }

  template <MethodOf Owner>
  static consteval HookRow row(const char* className, const char* selector, const char* encoding) {
    if (!hasEncoding<Result, Parameters...>(encoding)) throw "the function has another type encoding";
    return {className, selector, encoding, false, &install<Owner>};
  }
};

template <auto Function, class Type = decltype(Function)>
struct Addition;

template <auto Function, class Receiver, class Result, class... Parameters>
struct Addition<Function, Result (*)(Receiver, Parameters...)> {
  static typename Wire<Result>::Type call(id self, SEL, typename Wire<Parameters>::Type... arguments) {
    if constexpr (std::is_void_v<Result>) {
      Function(Receiver(self), Wire<Parameters>::from(arguments)...);
    } else {
      return Wire<Result>::to(Function(Receiver(self), Wire<Parameters>::from(arguments)...));
    }
  }

  static void install(const HookRow& row) { addMethod(row, reinterpret_cast<IMP>(&call)); }

  /// A method told to answer nothing may answer an object: some callers take one from whatever they call.
  static consteval HookRow row(const char* className, const char* selector, const char* encoding) {
    static_assert(std::is_void_v<Result> || std::is_base_of_v<Object, Result>);
    if (!hasEncoding<void, Parameters...>(encoding)) throw "the function has another type encoding";
    return {className, selector, encoding, true, &install};
  }
};

/// What leaves a method as it is. Each method has its own, and so its own slot.
template <Name ClassName, Name Selector, class Signature>
struct HostsAnswer;

template <Name ClassName, Name Selector, class Result, class... Parameters>
struct HostsAnswer<ClassName, Selector, Result(Parameters...)> {
  static Result handOn(Object, Replaced<Result(Parameters...)> host, Parameters... arguments) {
    return host(arguments...);
  }
};

}  // namespace hook_details

/// A row that puts `Function` in the place of an instance method of that type encoding. The function takes
/// the receiver, what it replaces, and the method's arguments; one of other types does not compile.
template <auto Function>
consteval HookRow replace(const char* className, const char* selector, const char* encoding) {
  using namespace hook_details;
  return Replacement<Function>::template row<MethodOf::instance>(className, selector, encoding);
}

/// The same for a class method.
template <auto Function>
consteval HookRow replaceClassMethod(const char* className, const char* selector, const char* encoding) {
  using namespace hook_details;
  return Replacement<Function>::template row<MethodOf::type>(className, selector, encoding);
}

/// A row for a method that is taken over and answers as the host does: its place in the order of hooks is
/// kept for what may come to be decided there.
template <Name ClassName, Name Selector, class Signature>
consteval HookRow handOn(const char* encoding) {
  return replace<&hook_details::HostsAnswer<ClassName, Selector, Signature>::handOn>(ClassName.text,
                                                                                     Selector.text, encoding);
}

/// A row that gives the class a new method of that type encoding. Does not compile when the function takes
/// other arguments than the encoding tells.
template <auto Function>
consteval HookRow add(const char* className, const char* selector, const char* encoding) {
  return hook_details::Addition<Function>::row(className, selector, encoding);
}

/// The host's method that `Function` replaced, for another hook, bound to a receiver of the class in its row,
/// or to that class itself for a class method. The selector is the row's, which nothing checks.
template <auto Function, Name Selector>
auto replacedBy(Object receiver) {
  using hook_details::Replacement;
  return
      typename Replacement<Function>::Host(receiver.get(), selector<Selector>(), Replacement<Function>::slot);
}

/// Whether each replacement is used by one row only: it has one slot for what it replaced.
consteval bool replacementsAreDistinct(std::span<const HookRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (!rows[i].isAdded && rows[i].install == rows[j].install) return false;
    }
  }
  return true;
}

}  // namespace velvault12
