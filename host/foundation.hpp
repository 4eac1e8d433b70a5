#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/reference.hpp"
#include "host/runtime.hpp"

extern "C" void NSLog(objc_object* format, ...);

namespace velvault12 {

using NSInteger = std::int64_t;
using NSUInteger = std::uint64_t;

class NSString : public HostClass<"NSString"> {
 public:
  using HostClass::HostClass;

  /// Autoreleased.
  static NSString from(std::string_view utf8);
  /// The text, "" for nil. Every string of the host survives the way there and back, those that are not valid
  /// Unicode included (a half of a surrogate pair travels as three bytes).
  std::string utf8() const;

  bool isEqualToString(NSString other) const { return send<"isEqualToString:", bool(NSString)>(other); }

  /// The whole of a file that holds UTF-8; empty when it is missing, unreadable or holds something else.
  static std::optional<std::string> contentsOfFile(std::string_view path);
};

/// Whether the text is one number and nothing else, white space around it aside, as the host's scanner reads
/// numbers: "12" and "1.5e3" are, "12 photos", "1,234" and "" are not.
bool isNumber(NSString text);

/// Goes through a list of the host by index; the list must not change meanwhile.
template <class List>
class ListIterator {
 public:
  ListIterator(List list, NSUInteger index) : list_(list), index_(index) {}
  auto operator*() const { return list_.objectAtIndex(index_); }
  ListIterator& operator++() {
    ++index_;
    return *this;
  }
  bool operator!=(const ListIterator& other) const { return index_ != other.index_; }

 private:
  List list_;
  NSUInteger index_;
};

class NSNumber : public HostClass<"NSNumber"> {
 public:
  using HostClass::HostClass;
  static NSNumber from(int value);
  static NSNumber from(bool value);
  static NSNumber from(NSUInteger value);
};

class NSValue : public HostClass<"NSValue"> {
 public:
  using HostClass::HostClass;
  static NSValue ofPointer(const void* pointer) {
    return sendToClass<"valueWithPointer:", NSValue(const void*)>(hostClass(), pointer);
  }
};

/// What a value that came from a file or a message says as a number or a switch; nothing when it is no value
/// of that kind. Numbers and strings both are.
std::optional<int> intValue(Object value);
std::optional<bool> boolValue(Object value);
/// The text of a string; nothing for any other object.
std::optional<std::string> stringValue(Object value);

class NSArray : public HostClass<"NSArray"> {
 public:
  using HostClass::HostClass;
  NSUInteger count() const { return send<"count", NSUInteger()>(); }
  /// The index is below `count`.
  Object objectAtIndex(NSUInteger index) const { return send<"objectAtIndex:", Object(NSUInteger)>(index); }
  bool containsObject(Object object) const { return send<"containsObject:", bool(Object)>(object); }
  ListIterator<NSArray> begin() const { return {*this, 0}; }
  ListIterator<NSArray> end() const { return {*this, count()}; }
  Ref<NSArray> copy() const { return Ref<NSArray>::adopt(send<"copy", NSArray()>()); }
  bool writeToFile(NSString path, bool atomically) const {
    return send<"writeToFile:atomically:", bool(NSString, bool)>(path, atomically);
  }

  /// Autoreleased.
  static NSArray from(const std::vector<std::string>& strings);
  /// An array of that one object, an empty one for nil. Autoreleased.
  static NSArray of(Object object);
  /// The strings among the elements, in order; what is no string is left out.
  std::vector<std::string> strings() const;
  /// A property list file that holds an array; empty when it is missing or holds something else.
  static Ref<NSArray> contentsOfFile(std::string_view path);
};

class NSMutableArray : public HostClass<"NSMutableArray", NSArray> {
 public:
  using HostClass::HostClass;
  void addObject(Object object) const {
    if (object) send<"addObject:", void(Object)>(object);
  }
};

class NSSet : public HostClass<"NSSet"> {
 public:
  using HostClass::HostClass;
  bool containsObject(Object object) const { return send<"containsObject:", bool(Object)>(object); }
  static Ref<NSSet> of(NSArray array) { return makeObject<NSSet, "initWithArray:">(array); }
};

/// What a collection of the host holds, of whatever class that walks it: an array, a set, a fetch result.
/// Empty for nil and for what is no collection.
Ref<NSArray> elementsOf(Object collection);

class NSDictionary : public HostClass<"NSDictionary"> {
 public:
  using HostClass::HostClass;
  Object objectForKey(NSString key) const { return send<"objectForKey:", Object(NSString)>(key); }
  Object operator[](std::string_view key) const { return objectForKey(NSString::from(key)); }
  NSArray allKeys() const { return send<"allKeys", NSArray()>(); }
  bool writeToFile(NSString path, bool atomically) const {
    return send<"writeToFile:atomically:", bool(NSString, bool)>(path, atomically);
  }

  /// A property list file that holds a dictionary; nil when it is missing or holds something else.
  /// Autoreleased.
  static NSDictionary contentsOfFile(std::string_view path);
};

class NSMutableDictionary : public HostClass<"NSMutableDictionary", NSDictionary> {
 public:
  using HostClass::HostClass;
  /// A nil object leaves the key without an entry, where the host would raise.
  void set(std::string_view key, Object object) const {
    if (object) send<"setObject:forKey:", void(Object, NSString)>(object, NSString::from(key));
  }
};

/// A copy of its own; an empty one for nil.
Ref<NSMutableDictionary> mutableCopy(NSDictionary dictionary);

class NSBundle : public HostClass<"NSBundle"> {
 public:
  using HostClass::HostClass;
  static NSBundle mainBundle() { return sendToClass<"mainBundle", NSBundle()>(hostClass()); }
  /// Nil in a process that is no app.
  NSString bundleIdentifier() const { return send<"bundleIdentifier", NSString()>(); }
  /// The text for a key in the user's language, the key itself where there is none.
  NSString localizedString(std::string_view key) const;
};

class NSFileManager : public HostClass<"NSFileManager"> {
 public:
  using HostClass::HostClass;
  static NSFileManager defaultManager() {
    return sendToClass<"defaultManager", NSFileManager()>(hostClass());
  }
  bool fileExistsAtPath(NSString path) const { return send<"fileExistsAtPath:", bool(NSString)>(path); }
  /// With the folders above it where those are missing.
  bool createDirectoryAtPath(NSString path) const;
};

class NSIndexPath : public HostClass<"NSIndexPath"> {
 public:
  using HostClass::HostClass;
  NSInteger section() const { return send<"section", NSInteger()>(); }
  NSInteger item() const { return send<"item", NSInteger()>(); }
};

class NSPredicate : public HostClass<"NSPredicate"> {
 public:
  using HostClass::HostClass;
  /// "%@" in the format stands for the argument. Autoreleased.
  static NSPredicate make(std::string_view format, NSString argument);
};

class NSSortDescriptor : public HostClass<"NSSortDescriptor"> {
 public:
  using HostClass::HostClass;
  /// Autoreleased.
  static NSSortDescriptor make(std::string_view key, bool ascending);
};

class NSThread : public HostClass<"NSThread"> {
 public:
  using HostClass::HostClass;
  static bool isMainThread() { return sendToClass<"isMainThread", bool()>(hostClass()); }
};

/// Writes a line to the system's log. The format's arguments are as C passes them: an object for "%@", its
/// `id` for "%p", an int for "%d".
template <class... Arguments>
void log(std::string_view format, Arguments... arguments) {
  NSLog(NSString::from(format).get(), arguments...);
}

class NSTimer : public HostClass<"NSTimer"> {
 public:
  using HostClass::HostClass;
  /// Sends `action` to the target once, after that many seconds on the calling thread's run loop; the target
  /// is kept until then. A thread that runs none, such as a queue's, never comes to it.
  static NSTimer scheduledOnce(double seconds, Object target, SEL action);
};

}  // namespace velvault12
