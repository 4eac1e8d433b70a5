#include "device/frameworks/Foundation/property_list.hpp"

#include <cmath>
#include <cstdio>
#include <ctime>

#include "device/frameworks/Foundation/binary_property_list.hpp"
#include "device/system/disk.hpp"

namespace device {
namespace {

// GNUstep's readers of text follow the nesting on the stack, which holds out for more than twice as many.
constexpr std::size_t kMostContainers = 20'000;
constexpr int kDeepest = 512;
/// Ends a text that a few shared objects make grow without end.
constexpr std::size_t kLongestText = 16 << 20;
/// Seconds from 1970. A written year has four digits, and GNUstep's reader takes the year 0 for the year 1.
constexpr double kYear1 = -62'135'596'800;
constexpr double kYear10000 = 253'402'300'800;

std::size_t occurrences(std::string_view text, std::string_view word) {
  std::size_t count = 0;
  for (std::size_t at = 0; (at = text.find(word, at)) != text.npos; at += word.size()) count++;
  return count;
}

bool hasTooManyContainers(std::string_view text) {
  std::size_t containers = occurrences(text, "<array") + occurrences(text, "<dict");
  if (!text.starts_with("<?xml")) containers += occurrences(text, "(") + occurrences(text, "{");
  return containers > kMostContainers;
}

// GNUstep's reader of XML reaches for what would follow where the text stops.
bool isXmlCutOff(std::string_view text) {
  return text.starts_with("<?xml") && text.find("</plist>") == text.npos;
}

// A phone knows no such form. Its reader makes room for as many items as the file says that it holds.
bool isGnustepsOwnForm(std::string_view bytes) { return bytes.starts_with('\0') || bytes.starts_with('\1'); }

// With GNUstep's readers. libplist's takes any text for a number or a date, and a file without its end for a
// whole one; it does not know the old text. The checks around it were longer than these.
id textPropertyListIn(std::string_view text) {
  if (isXmlCutOff(text) || isGnustepsOwnForm(text) || hasTooManyContainers(text)) return nil;
  // The readers look a few characters ahead, behind the end as well.
  std::string padded(text);
  padded.append(64, '\0');
  @try {
    return [NSPropertyListSerialization propertyListWithData:[NSData dataWithBytesNoCopy:padded.data()
                                                                                  length:text.size()
                                                                            freeWhenDone:NO]
                                                     options:NSPropertyListImmutable
                                                      format:NULL
                                                       error:NULL];
  } @catch (NSException*) {
    return nil;
  }
}

// Replaces two writers. GNUstep's spoils characters above U+FFFF, such as most emoji, and hangs over dates
// before the year 1. libplist's has no dates outside of 1932 to 2069 and no integers above 2^63 - 1.
class XmlWriter {
 public:
  bool write(id value, int depth = 0) {
    if (depth > kDeepest || text.size() > kLongestText) return false;
    if ([value isKindOfClass:[NSString class]]) return string("string", value);
    if ([value isKindOfClass:[NSNumber class]]) return number(value);
    if ([value isKindOfClass:[NSDate class]]) return date(value);
    if ([value isKindOfClass:[NSData class]]) return string("data", [value base64EncodedStringWithOptions:0]);
    if ([value isKindOfClass:[NSArray class]]) return array(value, depth);
    return [value isKindOfClass:[NSDictionary class]] && dictionary(value, depth);
  }

  std::string text;

 private:
  void element(std::string_view name, std::string_view contents) {
    text.append("<").append(name).append(">").append(contents).append("</").append(name).append(">\n");
  }

  bool string(std::string_view name, NSString* value) {
    NSData* bytes = [value dataUsingEncoding:NSUTF8StringEncoding];
    if (!bytes) return false;
    std::string escaped;
    std::string_view rest(static_cast<const char*>([bytes bytes]), [bytes length]);
    // The reader drops a byte order mark from the start of a text.
    if (rest.starts_with("\uFEFF")) return false;
    for (; !rest.empty(); rest.remove_prefix(1)) escaped += escape(rest);
    element(name, escaped);
    return true;
  }

  // The reader takes \Uxxxx for a character, which is how control characters get through.
  static std::string escape(std::string_view rest) {
    const char character = rest.front();
    if (character == '<') return "&lt;";
    if (character == '>') return "&gt;";
    if (character == '&') return "&amp;";
    const auto code = static_cast<unsigned char>(character);
    if ((code >= ' ' || character == '\t' || character == '\n') && !rest.starts_with("\\U"))
      return {character};
    char escaped[8];
    std::snprintf(escaped, sizeof escaped, "\\U%04X", code);
    return escaped;
  }

  bool number(NSNumber* value) {
    if ([value isKindOfClass:[[NSNumber numberWithBool:YES] class]]) {
      text += [value boolValue] ? "<true/>\n" : "<false/>\n";
    } else if (*[value objCType] == 'd' || *[value objCType] == 'f') {
      char digits[32];
      std::snprintf(digits, sizeof digits, "%.17g", [value doubleValue]);
      element("real", digits);
    } else {
      element("integer", utf8([value stringValue]));
    }
    return true;
  }

  bool date(NSDate* value) {
    const double seconds = std::floor([value timeIntervalSince1970]);
    if (!(seconds >= kYear1 && seconds < kYear10000)) return false;
    const auto time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    char formatted[40];
    std::strftime(formatted, sizeof formatted, "%04Y-%m-%dT%H:%M:%SZ", ::gmtime_r(&time, &parts));
    element("date", formatted);
    return true;
  }

  bool array(NSArray* value, int depth) {
    text += "<array>\n";
    for (id item in value) {
      if (!write(item, depth + 1)) return false;
    }
    text += "</array>\n";
    return true;
  }

  bool dictionary(NSDictionary* value, int depth) {
    text += "<dict>\n";
    for (id key in value) {
      if (![key isKindOfClass:[NSString class]] || !string("key", key)) return false;
      if (!write([value objectForKey:key], depth + 1)) return false;
    }
    text += "</dict>\n";
    return true;
  }
};

}  // namespace

id propertyListIn(std::string_view bytes) {
  return bytes.starts_with(kBinaryMagic) ? binaryPropertyListIn(bytes) : textPropertyListIn(bytes);
}

id propertyListIn(std::string_view bytes, Class kind) {
  id value = propertyListIn(bytes);
  return [value isKindOfClass:kind] ? value : nil;
}

id propertyListInFile(const std::filesystem::path& file, Class kind) {
  const std::optional<std::string> bytes = readFile(file);
  return bytes ? propertyListIn(*bytes, kind) : nil;
}

std::optional<std::string> xmlPropertyListOf(id value) {
  XmlWriter writer;
  if (!writer.write(value)) return std::nullopt;
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                     "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                     "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n" +
                     writer.text + "</plist>\n";
  // What would not be read is not written.
  if (hasTooManyContainers(text)) return std::nullopt;
  return text;
}

std::string utf8(NSString* string) {
  NSData* bytes = [string dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
  return bytes ? std::string(static_cast<const char*>([bytes bytes]), [bytes length]) : "";
}

NSString* stringOf(std::string_view bytes) {
  return [[[NSString alloc] initWithBytes:bytes.data() length:bytes.size()
                                 encoding:NSUTF8StringEncoding] autorelease];
}

}  // namespace device
