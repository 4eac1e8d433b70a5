#include "device/system/loader.hpp"

#import <Foundation/Foundation.h>
#include <dlfcn.h>
#include <objc/runtime.h>

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <vector>

#include "device/frameworks/Foundation/property_list.hpp"
#include "device/system/disk.hpp"
#include "device/system/process.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLibraries = "/Library/MobileSubstrate/DynamicLibraries";

NSArray* namesIn(NSDictionary* filter, NSString* kind) {
  id names = [filter objectForKey:kind];
  return [names isKindOfClass:[NSArray class]] ? names : nil;
}

bool namesThisProcess(const fs::path& filterFile) {
  NSDictionary* file = propertyListInFile(filterFile, [NSDictionary class]);
  NSDictionary* filter = [file objectForKey:@"Filter"];
  if (![filter isKindOfClass:[NSDictionary class]]) return false;

  NSMutableSet* bundles = [NSMutableSet setWithObjects:@"com.apple.UIKit", @"com.apple.Foundation",
                                                       @"com.apple.CoreFoundation", @"com.apple.Photos", nil];
  [bundles addObject:[NSString stringWithUTF8String:identity().bundleIdentifier.c_str()]];
  for (id name in namesIn(filter, @"Bundles")) {
    if ([bundles containsObject:name]) return true;
  }
  for (id name in namesIn(filter, @"Classes")) {
    if ([name isKindOfClass:[NSString class]] && NSClassFromString(name)) return true;
  }
  return false;
}

thread_local bool isLoading = false;

std::vector<fs::path> filterFiles() {
  std::vector<fs::path> files;
  std::error_code ignored;
  fs::directory_iterator entry(diskOfThisProcess().locate(kLibraries), ignored);
  for (const fs::directory_iterator end; !ignored && entry != end; entry.increment(ignored)) {
    if (entry->path().extension() == ".plist") files.push_back(entry->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

void loadInjectedLibraries() {
  NSAutoreleasePool* pool = [NSAutoreleasePool new];
  for (const fs::path& filter : filterFiles()) {
    if (!namesThisProcess(filter)) continue;
    const fs::path library = fs::path(filter).replace_extension(".dylib");
    isLoading = true;
    if (!::dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL)) NSLog(@"not loaded: %s", ::dlerror());
    isLoading = false;
  }
  [pool drain];
}

bool isLoadingLibrary() { return isLoading; }

}  // namespace device
