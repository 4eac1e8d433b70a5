#include "tests/host/missing_method.hpp"

#include <dlfcn.h>
#include <link.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <regex>

#include "host/runtime.hpp"

namespace velvault12 {

extern "C" Class class_getSuperclass(Class type);

namespace {

struct Hidden {
  Class owner = nullptr;
  SEL selector = nullptr;
  bool isPublic = false;
};
Hidden hidden;
std::atomic<bool> asked = false;
std::atomic<std::int64_t> references = 0;

bool isLibrary(const void* caller) {
  static constinit std::atomic<const void*> library{nullptr};
  dl_find_object place{};
  if (_dl_find_object(const_cast<void*>(caller), &place) != 0) return false;
  if (library == nullptr && std::string_view(place.dlfo_link_map->l_name).ends_with("velvault12.dylib"))
    library = place.dlfo_map_start;
  return library == place.dlfo_map_start;
}

bool lacks(Class type, SEL selector) {
  if (hidden.owner == nullptr || selector != hidden.selector) return false;
  while (type != nullptr && type != hidden.owner) type = class_getSuperclass(type);
  asked = asked || type != nullptr;
  return type != nullptr;
}

bool isDenied(id receiver, SEL selector) {
  return !hidden.isPublic && lacks(object_getClass(receiver), selector);
}

// What the library is told in place of the host's own reply.
ObjcBool responds(id self, SEL selector, SEL aboutSelector) {
  return !isDenied(self, aboutSelector) && Message<bool(SEL)>::send(self, selector, aboutSelector);
}
id methodSignature(id self, SEL selector, SEL aboutSelector) {
  return isDenied(self, aboutSelector) ? nullptr : Message<id(SEL)>::send(self, selector, aboutSelector);
}

/// By how many references to its result or receiver a message changes what its sender holds.
int heldBy(SEL selector) {
  static const std::set<SEL> taking = {sel_registerName("alloc"), sel_registerName("new"),
                                       sel_registerName("copy"), sel_registerName("mutableCopy"),
                                       sel_registerName("retain")};
  static const std::set<SEL> giving = {sel_registerName("release"), sel_registerName("autorelease"),
                                       sel_registerName("drain")};
  if (taking.contains(selector)) return 1;
  return giving.contains(selector) ? -1 : 0;
}

template <class Function>
Function* hosts(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::atomic<std::int64_t> blocks = 0;

/// Stands in front of each block that C++ allocates in this process.
struct alignas(std::max_align_t) BlockHead {
  bool isLibrarys;
};

void* allocated(std::size_t size, const void* caller) {
  auto* const head = static_cast<BlockHead*>(std::malloc(sizeof(BlockHead) + size));
  if (head == nullptr) std::abort();
  head->isLibrarys = isLibrary(caller);
  blocks += head->isLibrarys ? 1 : 0;
  return head + 1;
}

void freed(void* block) {
  if (block == nullptr) return;
  BlockHead* const head = static_cast<BlockHead*>(block) - 1;
  blocks -= head->isLibrarys ? 1 : 0;
  std::free(head);
}

}  // namespace

// Found before the runtime's own, as are the functions below. The host's code runs through them as well.

extern "C" IMP objc_msg_lookup(id receiver, SEL selector) {
  static const auto host = hosts<IMP(id, SEL)>("objc_msg_lookup");
  static const SEL kResponds = sel_registerName("respondsToSelector:");
  static const SEL kSignature = sel_registerName("methodSignatureForSelector:");
  if (receiver == nullptr || !isLibrary(__builtin_return_address(0))) return host(receiver, selector);
  references += heldBy(selector);
  if (selector == kResponds) return reinterpret_cast<IMP>(responds);
  if (selector == kSignature) return reinterpret_cast<IMP>(methodSignature);
  if (isDenied(receiver, selector)) ADD_FAILURE() << Object(receiver).className() << " is sent what it lacks";
  return host(receiver, selector);
}

extern "C" objc_method* class_getInstanceMethod(Class type, SEL selector) {
  static const auto host = hosts<objc_method*(Class, SEL)>("class_getInstanceMethod");
  return isLibrary(__builtin_return_address(0)) && lacks(type, selector) ? nullptr : host(type, selector);
}

void hideFromLibrary(const HostMethod& method) {
  hidden.selector = sel_registerName(method.selector.c_str());
  hidden.isPublic = method.isPublic;
  const Class type = objc_getClass(method.className.c_str());
  ASSERT_TRUE(type);
  hidden.owner = method.isClassMethod ? object_getClass(reinterpret_cast<id>(type)) : type;
  objc_method* const hosts = class_getInstanceMethod(hidden.owner, hidden.selector);
  ASSERT_TRUE(hosts) << "this host has no such method";
  EXPECT_EQ(plainEncoding(method_getTypeEncoding(hosts)), plainEncoding(method.encoding));
}

bool wasAskedFor() { return asked; }

Holdings holdings() { return {references, blocks}; }

std::vector<std::optional<HostMethod>> missingMethodsOf(std::string_view host) {
  std::vector<std::optional<HostMethod>> all{std::nullopt};
  for (const HostMethod& each : hostMethods(host)) {
    if (!each.isAdded && !each.isInNoVersion) all.emplace_back(each);
  }
  return all;
}

std::string nameOf(const ::testing::TestParamInfo<std::optional<HostMethod>>& info) {
  if (!info.param) return "Nothing";
  return std::regex_replace(info.param->className + "_" + info.param->selector, std::regex(":"), "");
}

}  // namespace velvault12

void* operator new(std::size_t size) { return velvault12::allocated(size, __builtin_return_address(0)); }
void* operator new[](std::size_t size) { return velvault12::allocated(size, __builtin_return_address(0)); }
void operator delete(void* block) noexcept { velvault12::freed(block); }
void operator delete[](void* block) noexcept { velvault12::freed(block); }
void operator delete(void* block, std::size_t) noexcept { velvault12::freed(block); }
void operator delete[](void* block, std::size_t) noexcept { velvault12::freed(block); }
