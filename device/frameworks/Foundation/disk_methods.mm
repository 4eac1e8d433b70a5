#include "device/frameworks/Foundation/disk_methods.hpp"

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

#include "device/frameworks/Foundation/property_list.hpp"
#include "device/system/disk.hpp"
#include "device/system/method_replacement.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

// What the methods ran before.
struct Host {
  const char* (*fileSystemPath)(id, SEL, NSString*);
  BOOL (*makeFolder)(id, SEL, NSString*, BOOL, NSDictionary*, NSError**);
  BOOL (*makeFile)(id, SEL, NSString*, NSData*, NSDictionary*);
  BOOL (*remove)(id, SEL, NSString*, NSError**);
  BOOL (*copy)(id, SEL, NSString*, NSString*, NSError**);
  BOOL (*move)(id, SEL, NSString*, NSString*, NSError**);
  NSString* (*bundleIdentifier)(id, SEL);
} host;

bool mayWrite(NSString* path) { return diskOfThisProcess().mayWrite(utf8(path)); }

BOOL refused(NSError** error) {
  if (error)
    *error = [NSError errorWithDomain:NSCocoaErrorDomain code:NSFileWriteNoPermissionError userInfo:nil];
  return NO;
}

// Every method of GNUstep that opens, makes or looks for a file asks this one for its name.
const char* fileSystemPath(id self, SEL command, NSString* path) {
  NSString* located = stringOf(diskOfThisProcess().locate(utf8(path)).native());
  return host.fileSystemPath(self, command, path ? located : nil);
}

BOOL makeFolder(id self, SEL command, NSString* path, BOOL all, NSDictionary* attributes, NSError** error) {
  return mayWrite(path) ? host.makeFolder(self, command, path, all, attributes, error) : refused(error);
}

BOOL makeFile(id self, SEL command, NSString* path, NSData* contents, NSDictionary* attributes) {
  return mayWrite(path) && host.makeFile(self, command, path, contents, attributes);
}

BOOL remove(id self, SEL command, NSString* path, NSError** error) {
  return mayWrite(path) ? host.remove(self, command, path, error) : refused(error);
}

BOOL copy(id self, SEL command, NSString* from, NSString* to, NSError** error) {
  return mayWrite(to) ? host.copy(self, command, from, to, error) : refused(error);
}

BOOL move(id self, SEL command, NSString* from, NSString* to, NSError** error) {
  return mayWrite(from) && mayWrite(to) ? host.move(self, command, from, to, error) : refused(error);
}

BOOL write(NSString* path, std::string_view contents, BOOL atomically) {
  return diskOfThisProcess().write(utf8(path), contents, atomically);
}

BOOL writeData(NSData* self, SEL, NSString* path, BOOL atomically) {
  return write(path, {static_cast<const char*>([self bytes]), [self length]}, atomically);
}

BOOL writeDataWithOptions(NSData* self, SEL, NSString* path, NSUInteger, NSError** error) {
  return [self writeToFile:path atomically:YES] || refused(error);
}

BOOL writePropertyList(id self, SEL, NSString* path, BOOL atomically) {
  const std::optional<std::string> text = xmlPropertyListOf(self);
  return text && write(path, *text, atomically);
}

id contents(NSString* path, Class kind) {
  const std::optional<std::string> bytes = diskOfThisProcess().read(utf8(path));
  return bytes ? propertyListIn(*bytes, kind) : nil;
}

id readArray(NSArray* self, SEL, NSString* path) {
  NSArray* items = contents(path, [NSArray class]);
  if (items) return [self initWithArray:items];
  [self release];
  return nil;
}

id readDictionary(NSDictionary* self, SEL, NSString* path) {
  NSDictionary* entries = contents(path, [NSDictionary class]);
  if (entries) return [self initWithDictionary:entries];
  [self release];
  return nil;
}

id readText(NSString* self, SEL, NSString* path, NSStringEncoding encoding, NSError** error) {
  const std::optional<std::string> bytes = diskOfThisProcess().read(utf8(path));
  id text = bytes ? [self initWithBytes:bytes->data() length:bytes->size() encoding:encoding] : nil;
  if (!bytes) [self release];
  if (!text && error) {
    const NSInteger code = bytes ? NSFileReadInapplicableStringEncodingError : NSFileReadNoSuchFileError;
    *error = [NSError errorWithDomain:NSCocoaErrorDomain code:code userInfo:nil];
  }
  return text;
}

// The app's own bundle is this machine's program for all of them.
NSString* bundleIdentifier(id self, SEL command) {
  if (self != [NSBundle mainBundle]) return host.bundleIdentifier(self, command);
  return identity().bundleIdentifier.empty() ? nil : stringOf(identity().bundleIdentifier);
}

template <typename Method>
Method* replace(Class replaced, SEL selector, Method* replacement) {
  return reinterpret_cast<Method*>(replaceMethod(replaced, selector, reinterpret_cast<IMP>(replacement)));
}

}  // namespace

void leadFoundationToDisk() {
  // One by one: a class that is used for the first time may look for files with what is replaced already.
  Class files = [NSFileManager class];
  host.fileSystemPath = replace(files, @selector(fileSystemRepresentationWithPath:), fileSystemPath);
  host.makeFolder = replace(
      files, @selector(createDirectoryAtPath:withIntermediateDirectories:attributes:error:), makeFolder);
  host.makeFile = replace(files, @selector(createFileAtPath:contents:attributes:), makeFile);
  host.remove = replace(files, @selector(removeItemAtPath:error:), remove);
  host.copy = replace(files, @selector(copyItemAtPath:toPath:error:), copy);
  host.move = replace(files, @selector(moveItemAtPath:toPath:error:), move);
  host.bundleIdentifier = replace([NSBundle class], @selector(bundleIdentifier), bundleIdentifier);
  replace([NSData class], @selector(writeToFile:atomically:), writeData);
  replace([NSData class], @selector(writeToFile:options:error:), writeDataWithOptions);
  replace([NSArray class], @selector(initWithContentsOfFile:), readArray);
  replace([NSArray class], @selector(writeToFile:atomically:), writePropertyList);
  replace([NSString class], @selector(initWithContentsOfFile:encoding:error:), readText);
  replace([NSDictionary class], @selector(initWithContentsOfFile:), readDictionary);
  replace([NSDictionary class], @selector(writeToFile:atomically:), writePropertyList);
}

}  // namespace device
