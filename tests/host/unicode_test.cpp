#include "host/unicode.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

using namespace std::string_literals;

TEST(Unicode, EveryHostStringSurvivesTheWayThereAndBack) {
  const std::u16string texts[] = {
      u"",
      u"Holidays",
      u"\u00e9\u2603",
      u"\U0001F512 locked",
      u"a\0b"s,
      u"\xD800"s,          // half a pair, alone
      u"\xDC00\xD800"s,    // both halves, the wrong way round
      u"x\xDBFFy\xDFFF"s,  // each alone among letters
      u"\xDBFF\uE000"      // before what is no half
  };
  for (const std::u16string& text : texts) EXPECT_EQ(utf16FromUtf8(utf8FromUtf16(text)), text);
  EXPECT_EQ(utf8FromUtf16(u"\U0001F512"), "\xF0\x9F\x94\x92");
  EXPECT_NE(utf8FromUtf16(u"\xD800"s), utf8FromUtf16(u"\xD801"s));
}

TEST(Unicode, BytesThatAreNoUtf8AreReplacedOneByOne) {
  EXPECT_EQ(utf16FromUtf8("a\x80z"), u"a\uFFFDz");
  EXPECT_EQ(utf16FromUtf8("\xC0\x80"), u"\uFFFD\uFFFD");                      // too long for its point
  EXPECT_EQ(utf16FromUtf8("\xF0\x9F\x94"), u"\uFFFD\uFFFD\uFFFD");            // cut off
  EXPECT_EQ(utf16FromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD");  // above the last point
  EXPECT_EQ(utf16FromUtf8("\xE2\x28\xA1"), u"\uFFFD(\uFFFD");
  EXPECT_EQ(utf16FromUtf8("\xFF"), u"\uFFFD");
}

}  // namespace
}  // namespace velvault12
