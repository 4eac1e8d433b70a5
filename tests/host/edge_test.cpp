// The edge to the host against the real runtime and Foundation.

#include <gtest/gtest.h>

#include <memory>

#include "host/block.hpp"
#include "host/class_pair.hpp"
#include "host/foundation.hpp"
#include "host/hook.hpp"
#include "host/reference.hpp"
#include "host/uikit.hpp"

extern "C" {
void* _Block_copy(const void* block);  // NOLINT(bugprone-reserved-identifier): the blocks runtime's own name
void _Block_release(const void* block);  // NOLINT(bugprone-reserved-identifier): the same
}

namespace velvault12 {
namespace {

using namespace std::string_literals;

class Edge : public ::testing::Test {
  AutoreleasePool pool_;
};

NSUInteger references(Object object) { return object.send<"retainCount", NSUInteger()>(); }

TEST_F(Edge, TextCrossesUnchanged) {
  for (const std::string& text : {""s, "Holidays"s, "Caf\u00e9 \u2603 \U0001F512"s, "a\0b"s}) {
    EXPECT_EQ(NSString::from(text).utf8(), text);
  }
  EXPECT_EQ(NSString().utf8(), "");
  EXPECT_TRUE(NSString::from("x").isEqualToString(NSString::from("x")));
}

TEST_F(Edge, ValuesOfOtherTypesReadAsAbsent) {
  const Object array = NSArray::from({"1"});
  const Object null = sendToClass<"null", Object()>(classNamed<"NSNull">());
  for (const Object value : {Object(), array, null}) {
    EXPECT_FALSE(intValue(value));
    EXPECT_FALSE(boolValue(value));
    EXPECT_FALSE(stringValue(value));
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
  EXPECT_EQ(mixed->strings(), (std::vector<std::string>{"a", "b"}));
  EXPECT_FALSE(NSDictionary().allKeys());
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
  }
  EXPECT_EQ(references(object.get()), owned);
  {
    const AutoreleasePool inner;
    EXPECT_EQ(Ref<NSMutableArray>(object).autorelease(), object.get());
    EXPECT_EQ(references(object.get()), owned + 1);
  }
  EXPECT_EQ(references(object.get()), owned);
}

TEST_F(Edge, ABlockThatTheHostKeepsOwnsItsCaptures) {
  const auto captured = std::make_shared<int>(0);
  void* kept = nullptr;
  {
    auto literal =
        block<void(bool, Object)>([captured](bool success, Object) { *captured += success ? 1 : 10; });
    const Block<void(bool, Object)> view = literal;
    kept = _Block_copy(view.get());
  }
  EXPECT_EQ(captured.use_count(), 2);
  struct Layout {
    void* isa;
    int flags, reserved;
    void (*invoke)(void*, ObjcBool, id);
    const struct {
      unsigned long reserved, size;
      void *copy, *dispose;
      const char* signature;
    } * descriptor;
  };
  EXPECT_STREQ(static_cast<Layout*>(kept)->descriptor->signature, "v@?B@");
  static_cast<Layout*>(kept)->invoke(kept, 1, nullptr);
  static_cast<Layout*>(kept)->invoke(kept, 0, nullptr);
  EXPECT_EQ(*captured, 11);
  _Block_release(kept);
  EXPECT_EQ(captured.use_count(), 1);
}

TEST_F(Edge, NilAndObjectsWithoutTheMethodAnswerZero) {
  const CGRect none = UIView().frame();
  EXPECT_EQ(none.origin.x + none.origin.y + none.size.width + none.size.height, 0);
  const Object text = NSString::from("x");
  EXPECT_FALSE((text.trySend<"_tapticEngine", Object()>()));
  EXPECT_FALSE(text.as<NSArray>());
  EXPECT_FALSE(makeObject<HostClass<"NoSuchClass">>());
  EXPECT_FALSE(text.isKindOf(classNamed<"NoSuchClass">()));
}

NSString baseAnswer(Object) { return NSString::from("base"); }
NSString hooked(Object, Replaced<NSString()> host) { return NSString::from(host().utf8() + ", hooked"); }
NSString hookedTwice(Object, Replaced<NSString()> host) { return NSString::from(host().utf8() + ", twice"); }
void remember(Object receiver, NSString text) { receiver.send<"setString:", void(NSString)>(text); }

std::string answerOf(const char* className) {
  const id made = sendToClass<"new", id()>(objc_getClass(className));
  return NSString(Message<NSString()>::send(made, selector<"testAnswer">())).utf8();
}

TEST_F(Edge, HooksReachTheNamedClassAloneAndCallThrough) {
  const Class base = ClassPair(classNamed<"NSObject">(), "TestBase")
                         .variable("_word")
                         .method<baseAnswer>(selector<"testAnswer">(), "@@:")
                         .registered();
  ASSERT_NE(base, nullptr);
  ClassPair(base, "TestLeft").registered();
  ClassPair(base, "TestRight").registered();
  EXPECT_EQ(ClassPair(base, "TestLeft").registered(), nullptr);
  EXPECT_EQ(answerOf("TestLeft"), "base");

  const HookRow rows[] = {
      replace<hooked>("TestLeft", "testAnswer"),         replace<hookedTwice>("TestLeft", "testAnswer"),
      replace<hooked>("TestMissing", "testAnswer"),      replace<hooked>("TestRight", "testMissing"),
      add<remember>("TestMissing", "remember:", "v@:@"),
  };
  installHooks(rows);
  EXPECT_EQ(answerOf("TestLeft"), "base, hooked, twice");
  EXPECT_EQ(answerOf("TestRight"), "base");
  EXPECT_EQ(answerOf("TestBase"), "base");
  EXPECT_EQ((Replaced<NSString()>(nullptr, nullptr, nullptr)().get()), nullptr);
}

int classMethodCalls = 0;
Object countedProcessInfo(Object, Replaced<Object()> host) {
  ++classMethodCalls;
  return host();
}

TEST_F(Edge, AClassMethodIsReplacedOnItsClass) {
  const auto processInfo = [] { return sendToClass<"processInfo", Object()>(classNamed<"NSProcessInfo">()); };
  const Object before = processInfo();
  const HookRow rows[] = {replaceClassMethod<countedProcessInfo>("NSProcessInfo", "processInfo"),
                          replaceClassMethod<countedProcessInfo>("NSProcessInfo", "arguments")};
  installHooks(rows);
  EXPECT_TRUE(before);
  EXPECT_EQ(processInfo(), before);
  EXPECT_EQ(classMethodCalls, 1);
  EXPECT_TRUE((before.send<"arguments", Object()>())) << "an instance method is not its class's";
  EXPECT_EQ(classMethodCalls, 1);
}

TEST_F(Edge, AnAddedMethodIsCalledLikeAnyOther) {
  const HookRow rows[] = {add<remember>("NSMutableString", "velvaultTestRemember:", "v@:@")};
  installHooks(rows);
  const auto text = makeObject<HostClass<"NSMutableString", NSString>>();
  text->send<"performSelector:withObject:", Object(SEL, NSString)>(selector<"velvaultTestRemember:">(),
                                                                   NSString::from("kept"));
  EXPECT_EQ(text->utf8(), "kept");
}

}  // namespace
}  // namespace velvault12
