// The edge to the host against the real runtime and Foundation.

#include <Block.h>
#include <gtest/gtest.h>

#include <memory>

#include "host/block.hpp"
#include "host/class_pair.hpp"
#include "host/foundation.hpp"
#include "host/hook.hpp"
#include "host/reference.hpp"
#include "host/uikit.hpp"

namespace velvault12 {
namespace {

using namespace std::string_literals;

class Edge : public ::testing::Test {
  AutoreleasePool pool_;
};

NSUInteger references(Object object) { return object.send<"retainCount", NSUInteger()>(); }

TEST_F(Edge, ValuesCrossUnchangedAndThoseOfOtherTypesReadAsAbsent) {
  const std::string texts[] = {"", "Caf\u00e9 \u2603 \U0001F512", "a\0b"s};
  for (const std::string& text : texts) EXPECT_EQ(NSString::from(text).utf8(), text);
  const Object array = NSArray::from({"1"});
  const Object null = sendToClass<"null", Object()>(classNamed<"NSNull">());
  for (const Object other : {Object(), array, null}) {
    EXPECT_FALSE(intValue(other) || boolValue(other) || stringValue(other));
  }
  EXPECT_EQ(intValue(NSNumber::from(-7)), -7);
  EXPECT_EQ(boolValue(NSNumber::from(true)), true);
  EXPECT_FALSE(stringValue(NSNumber::from(3)));
  EXPECT_EQ(intValue(NSString::from("12 apples")), 12);
  EXPECT_EQ(boolValue(NSString::from("YES")), true);

  const Ref<NSMutableArray> mixed = makeObject<NSMutableArray>();
  for (const Object element : {Object(NSString::from("a")), Object(NSNumber::from(1)), array, Object(),
                               Object(NSString::from("b"))}) {
    mixed->addObject(element);
  }
  EXPECT_EQ(mixed->strings(), (std::vector{"a"s, "b"s}));
  // More than a set hands over at a time.
  std::vector<std::string> many;
  for (int number = 0; number < 40; ++number) many.push_back(std::to_string(number));
  EXPECT_EQ(elementsOf(NSSet::of(NSArray::from(many)).get())->count(), many.size());
}

TEST_F(Edge, NilAndObjectsWithoutTheMethodAnswerZero) {
  const CGRect none = UIView().frame();
  EXPECT_EQ(none.origin.x + none.origin.y + none.size.width + none.size.height, 0);
  EXPECT_EQ(NSString().utf8(), "");
  const Object text = NSString::from("x");
  EXPECT_FALSE((text.trySend<"_tapticEngine", Object()>()));
  EXPECT_FALSE(text.as<NSArray>());
  EXPECT_FALSE(makeObject<HostClass<"NoSuchClass">>());
  EXPECT_FALSE(text.isKindOf(classNamed<"NoSuchClass">()));
}

TEST_F(Edge, ReferencesBalance) {
  const Ref<NSMutableArray> object = makeObject<NSMutableArray>();
  const NSUInteger owned = references(object.get());
  {
    Ref<NSMutableArray> copy = object;
    const Ref<NSMutableArray> moved = std::move(copy);
    Ref<NSMutableArray> assigned;
    assigned = moved;
    assigned = *&assigned;
    EXPECT_EQ(references(object.get()), owned + 2);
    const AutoreleasePool inner;
    EXPECT_EQ(Ref<NSMutableArray>(object).autorelease(), object.get());
    EXPECT_EQ(references(object.get()), owned + 3);
  }
  EXPECT_EQ(references(object.get()), owned);
}

TEST_F(Edge, BlockHasATypeAndCopiesThatOwnTheirCaptures) {
  struct Layout {
    void* isa;
    int flags, reserved;
    void (*invoke)(void* block, bool, id);
    const struct {
      unsigned long sizes[2];
      void* helpers[2];
      const char* signature;
    } * descriptor;
  };
  const auto calls = std::make_shared<int>(0);
  Layout* copies[2];
  {
    auto literal = block<void(bool, Object)>([kept = calls](bool, Object) { ++*kept; });
    for (Layout*& copy : copies)
      copy = static_cast<Layout*>(_Block_copy(Block<void(bool, Object)>(literal).get()));
  }
  EXPECT_EQ(calls.use_count(), 3);
  for (Layout* const copy : copies) {
    EXPECT_NE(copy->flags & 1 << 30, 0);
    EXPECT_STREQ(copy->descriptor->signature, "v@?B@");
    copy->invoke(copy, true, nullptr);
    _Block_release(copy);
  }
  EXPECT_EQ(*calls, 2);
  EXPECT_EQ(calls.use_count(), 1);
}

NSString baseAnswer(Object) { return NSString::from("base"); }
NSString hooked(Object, Replaced<NSString()> host) { return NSString::from(host().utf8() + ", hooked"); }
NSString hookedTwice(Object, Replaced<NSString()> host) { return NSString::from(host().utf8() + ", twice"); }
void added(Object) {}
int classMethodCalls = 0;
Object countedProcessInfo(Object, Replaced<Object()> host) {
  ++classMethodCalls;
  return host();
}

TEST_F(Edge, HooksReachTheNamedMethodAloneAndCallThrough) {
  const Class base = ClassPair(classNamed<"NSObject">(), "TestBase")
                         .method<baseAnswer>(selector<"testAnswer">(), "@@:")
                         .registered();
  const Class derived = ClassPair(base, "TestDerived").registered();
  EXPECT_EQ(ClassPair(base, "TestDerived").registered(), nullptr) << "the name is taken";
  const auto answerOf = [](Class type) {
    return Object(sendToClass<"new", id()>(type)).send<"testAnswer", NSString()>().utf8();
  };
  const auto processInfo = [] { return sendToClass<"processInfo", Object()>(classNamed<"NSProcessInfo">()); };
  const Object info = processInfo();
  ASSERT_TRUE(info);

  const HookRow rows[] = {replace<hooked>("TestDerived", "testAnswer", "@@:"),
                          replace<hookedTwice>("TestDerived", "testAnswer", "@@:"),
                          replace<hooked>("TestDerived", "testMissing", "@@:"),
                          replace<hooked>("TestMissing", "testAnswer", "@@:"),
                          add<added>("TestMissing", "testAdded", "v@:"),
                          replaceClassMethod<countedProcessInfo>("NSProcessInfo", "processInfo", "@@:"),
                          replaceClassMethod<countedProcessInfo>("NSProcessInfo", "arguments", "@@:")};
  installHooks(rows);
  EXPECT_EQ(answerOf(derived), "base, hooked, twice");
  EXPECT_EQ(answerOf(base), "base");
  EXPECT_FALSE(Replaced<NSString()>(nullptr, nullptr, nullptr)());
  EXPECT_EQ(processInfo(), info);
  EXPECT_TRUE((info.send<"arguments", Object()>())) << "an instance method is not its class's";
  EXPECT_EQ(classMethodCalls, 1);
}

TEST_F(Edge, AMethodThatIsCalledInAnotherWayIsLeftAlone) {
  const struct {
    const char* hosts;
    const char* rows;
    bool areAlike;
  } cases[] = {
      {"@16@0:8", "@@:", true},
      {"B24@0:8@16", "B@:@", true},
      {"c20@0:8c16", "B@:B", true},
      {"{CGSize=dd}16@0:8", "{CGSize=dd}@:", true},
      {"{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8", "{CGRect={CGPoint=dd}{CGSize=dd}}@:", true},
      {"Vv24@0:8@?<v@?B@>16", "v@:@?", true},
      {"r^{_NSZone=^{x}q[4i]}16@0:8", "@@:", true},
      {"@24@0:8^@16", "@@:#", true},
      {"v32@0:8@\"NSString\"16@24", "v@:@@", true},
      {"v20@0:8f16", "v@:d", false},
      {"q16@0:8", "@@:", false},
      {"v16@0:8", "v@:@", false},
      {"v32@0:8@16@24", "v@:@", false},
      {"d16@0:8", "{CGSize=dd}@:", false},
      {"{CGSize=ff}16@0:8", "{CGSize=dd}@:", false},
      {"{CGRect={CGPoint=dd}{CGSize=dd}}16@0:8", "{CGSize=dd}@:", false},
      {"{A=d}q", "{A=dq}", false},
      {"{open", "{CGSize=dd}@:", false},
      {"v@:@\"open", "v@:@@", false},
  };
  for (const auto& [hosts, rows, areAlike] : cases) EXPECT_EQ(areCalledAlike(hosts, rows), areAlike) << hosts;

  const Class type = ClassPair(classNamed<"NSObject">(), "TestOtherTypes")
                         .method<baseAnswer>(selector<"testAnswer">(), "q@:")
                         .registered();
  const auto before = class_getInstanceMethod(type, selector<"testAnswer">());
  const HookRow rows[] = {replace<hooked>("TestOtherTypes", "testAnswer", "@@:")};
  installHooks(rows);
  EXPECT_EQ((Object(sendToClass<"new", id()>(type)).send<"testAnswer", NSString()>().utf8()), "base");
  EXPECT_EQ(class_getInstanceMethod(type, selector<"testAnswer">()), before);
}

}  // namespace
}  // namespace velvault12
