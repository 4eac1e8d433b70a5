#pragma once

#include <new>
#include <string_view>
#include <type_traits>
#include <utility>

#include "host/encoding.hpp"
#include "host/runtime.hpp"

extern "C" {
extern void* _NSConcreteStackBlock[];  // NOLINT(bugprone-reserved-identifier): the blocks runtime's own name
}

namespace velvault12 {

/// A block as a method's parameter takes it: not owned; whoever keeps it past the call copies it. May be
/// null.
template <class Signature>
class Block {
 public:
  constexpr Block() = default;
  constexpr explicit Block(void* literal) : literal_(literal) {}
  constexpr void* get() const { return literal_; }

 private:
  void* literal_ = nullptr;
};

template <class Signature>
struct Wire<Block<Signature>> {
  using Type = void*;
  static Type to(Block<Signature> value) { return value.get(); }
  static Block<Signature> from(Type value) { return Block<Signature>(value); }
};

template <class Signature>
inline constexpr std::string_view kEncoding<Block<Signature>> = "@?";

template <class Signature, class Callable>
class BlockLiteral;

/// A block whose body is a C++ callable, on the stack: converts to `Block` for as long as it lives. A copy
/// that the host makes owns a copy of the callable and destroys it with the block.
template <class Result, class... Parameters, class Callable>
class BlockLiteral<Result(Parameters...), Callable> {
 public:
  explicit BlockLiteral(Callable callable) : callable_(std::move(callable)) {}
  BlockLiteral(const BlockLiteral&) = delete;
  BlockLiteral& operator=(const BlockLiteral&) = delete;

  // NOLINTNEXTLINE(google-explicit-constructor): it stands for a block argument.
  operator Block<Result(Parameters...)>() { return Block<Result(Parameters...)>(this); }

 private:
  // The layout that the blocks runtime reads.
  struct Descriptor {
    unsigned long reserved;
    unsigned long size;
    void (*copy)(void* to, const void* from);
    void (*dispose)(const void* block);
    const char* signature;
  };
  static constexpr int kHasCopyDispose = 1 << 25;
  /// Without a signature the host cannot send a block on to another process.
  static constexpr int kHasSignature = 1 << 30;

  static typename Wire<Result>::Type invoke(void* block, typename Wire<Parameters>::Type... arguments) {
    auto& callable = static_cast<BlockLiteral*>(block)->callable_;
    if constexpr (std::is_void_v<Result>) {
      callable(Wire<Parameters>::from(arguments)...);
    } else {
      return Wire<Result>::to(callable(Wire<Parameters>::from(arguments)...));
    }
  }
  static void copy(void* to, const void* from) {
    new (&static_cast<BlockLiteral*>(to)->callable_)
        Callable(static_cast<const BlockLiteral*>(from)->callable_);
  }
  static void dispose(const void* block) { static_cast<const BlockLiteral*>(block)->callable_.~Callable(); }

  static constexpr auto kSignature = blockEncoding<Result, Parameters...>();
  static constexpr Descriptor kDescriptor{0, sizeof(BlockLiteral), copy, dispose, kSignature.data()};

  void* isa_ = _NSConcreteStackBlock;
  int flags_ = kHasCopyDispose | kHasSignature;
  int reserved_ = 0;
  typename Wire<Result>::Type (*invoke_)(void*, typename Wire<Parameters>::Type...) = invoke;
  const Descriptor* descriptor_ = &kDescriptor;
  Callable callable_;
};

/// `block<void(UIAlertAction)>([=](UIAlertAction action) {...})`: captured `Ref`s keep their objects alive.
template <class Signature, class Callable>
BlockLiteral<Signature, Callable> block(Callable callable) {
  return BlockLiteral<Signature, Callable>(std::move(callable));
}

}  // namespace velvault12
