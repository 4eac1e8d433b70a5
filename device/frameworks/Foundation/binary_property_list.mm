#include "device/frameworks/Foundation/binary_property_list.hpp"

#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

#include "device/frameworks/Foundation/property_list.hpp"

// Replaces two readers. GNUstep's trusts the counts in the file and follows objects that hold themselves.
// libplist 2.2 copies an object for each reference to it, so that 200 bytes can fill the memory, and aborts
// at a key that holds U+0000.

namespace device {
namespace {

constexpr std::size_t kTrailerBytes = 32;
constexpr int kDeepest = 512;
// Seconds from 1970 to 2001, where dates start.
constexpr double kReferenceDate = 978307200;

enum Kind : unsigned char {
  kSimple = 0x0,
  kInteger = 0x1,
  kReal = 0x2,
  kDate = 0x3,
  kData = 0x4,
  kAscii = 0x5,
  kUtf16 = 0x6,
  kArray = 0xA,
  kDictionary = 0xD,
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  id top() {
    if (bytes_.size() < kBinaryMagic.size() + kTrailerBytes) return nil;
    const std::size_t trailer = bytes_.size() - kTrailerBytes;
    offsetBytes_ = number(trailer + 6, 1).value();
    referenceBytes_ = number(trailer + 7, 1).value();
    const std::uint64_t count = number(trailer + 8, 8).value();
    offsets_ = number(trailer + 24, 8).value();
    if (offsetBytes_ < 1 || offsetBytes_ > 8 || referenceBytes_ < 1 || referenceBytes_ > 8) return nil;
    if (offsets_ > trailer || count > (trailer - offsets_) / offsetBytes_) return nil;
    end_ = offsets_;
    known_.resize(count);
    return object(number(trailer + 16, 8).value(), 0);
  }

 private:
  struct Slot {
    id object = nil;
    bool isRead = false;
  };

  std::optional<std::uint64_t> number(std::size_t at, std::size_t length) const {
    if (at > bytes_.size() || length > bytes_.size() - at) return std::nullopt;
    std::uint64_t value = 0;
    for (const char byte : bytes_.substr(at, length)) value = value << 8 | static_cast<unsigned char>(byte);
    return value;
  }

  // The bytes of `count` items, none when they would reach into the table of offsets.
  std::optional<std::string_view> items(std::size_t at, std::uint64_t count, std::size_t itemBytes) const {
    if (at > end_ || count > (end_ - at) / itemBytes) return std::nullopt;
    return bytes_.substr(at, count * itemBytes);
  }

  // Each object once, however often it is referred to; one that holds itself is damage.
  id object(std::uint64_t index, int depth) {
    if (index >= known_.size() || depth > kDeepest) return nil;
    if (known_[index].isRead) return known_[index].object;
    known_[index].isRead = true;
    const std::optional<std::uint64_t> at = number(offsets_ + index * offsetBytes_, offsetBytes_);
    return known_[index].object = at && *at < end_ ? objectAt(*at, depth) : nil;
  }

  id objectAt(std::size_t at, int depth) {
    const auto marker = static_cast<unsigned char>(bytes_[at++]);
    const int kind = marker >> 4;
    const int size = marker & 0xF;
    if (kind == kSimple) return size == 8 || size == 9 ? [NSNumber numberWithBool:size == 9] : nil;
    if (kind == kInteger || kind == kReal || kind == kDate) return numberAt(at, kind, size);

    std::uint64_t count = size;
    if (size == 0xF) {
      const std::optional<std::string_view> length = items(at, 1, 1);
      if (!length || length->front() >> 4 != kInteger) return nil;
      const std::size_t lengthBytes = std::size_t{1} << (length->front() & 0xF);
      if (lengthBytes > 8) return nil;
      count = number(at + 1, lengthBytes).value_or(~std::uint64_t{0});
      at += 1 + lengthBytes;
    }
    if (kind == kArray) return arrayAt(at, count, depth);
    if (kind == kDictionary) return dictionaryAt(at, count, depth);
    return textAt(at, kind, count);
  }

  id numberAt(std::size_t at, int kind, int sizeExponent) const {
    const std::size_t size = std::size_t{1} << sizeExponent;
    const std::optional<std::string_view> all = items(at, 1, size);
    if (!all || size > 16) return nil;
    // The lower half of a number of 16 bytes.
    const std::uint64_t value = size > 8 ? *number(at + 8, 8) : *number(at, size);
    if (kind == kInteger) {
      return size > 8 ? [NSNumber numberWithUnsignedLongLong:value]
                      : [NSNumber numberWithLongLong:static_cast<long long>(value)];
    }
    if (kind == kReal && size == 4) {
      return [NSNumber numberWithFloat:std::bit_cast<float>(static_cast<std::uint32_t>(value))];
    }
    if (size != 8) return nil;
    const auto real = std::bit_cast<double>(value);
    // GNUstep raises for a date that is no number.
    if (kind == kDate && std::isnan(real)) return nil;
    return kind == kReal ? [NSNumber numberWithDouble:real]
                         : (id)[NSDate dateWithTimeIntervalSince1970:real + kReferenceDate];
  }

  id textAt(std::size_t at, int kind, std::uint64_t count) const {
    const std::optional<std::string_view> text = items(at, count, kind == kUtf16 ? 2 : 1);
    if (!text) return nil;
    if (kind == kData) return [NSData dataWithBytes:text->data() length:text->size()];
    if (kind != kAscii && kind != kUtf16) return nil;
    const NSStringEncoding encoding = kind == kAscii ? NSUTF8StringEncoding : NSUTF16BigEndianStringEncoding;
    return [[[NSString alloc] initWithBytes:text->data() length:text->size() encoding:encoding] autorelease];
  }

  id referred(std::size_t at, std::uint64_t position, int depth) {
    return object(number(at + position * referenceBytes_, referenceBytes_).value(), depth + 1);
  }

  id arrayAt(std::size_t at, std::uint64_t count, int depth) {
    if (!items(at, count, referenceBytes_)) return nil;
    NSMutableArray* array = [NSMutableArray array];
    for (std::uint64_t i = 0; i < count; i++) {
      const id item = referred(at, i, depth);
      if (!item) return nil;
      [array addObject:item];
    }
    return array;
  }

  id dictionaryAt(std::size_t at, std::uint64_t count, int depth) {
    if (!items(at, count, 2 * referenceBytes_)) return nil;
    NSMutableDictionary* dictionary = [NSMutableDictionary dictionary];
    for (std::uint64_t i = 0; i < count; i++) {
      const id key = referred(at, i, depth);
      const id value = referred(at, count + i, depth);
      if (!value || ![key isKindOfClass:[NSString class]]) return nil;
      [dictionary setObject:value forKey:key];
    }
    return dictionary;
  }

  std::string_view bytes_;
  std::size_t offsets_ = 0;
  std::size_t end_ = 0;
  std::size_t offsetBytes_ = 0;
  std::size_t referenceBytes_ = 0;
  std::vector<Slot> known_;
};

}  // namespace

id binaryPropertyListIn(std::string_view bytes) { return Reader(bytes).top(); }

}  // namespace device
