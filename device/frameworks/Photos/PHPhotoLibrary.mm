#import "device/frameworks/Photos/PHPhotoLibrary.h"

#include <Block.h>

#include <optional>
#include <string>

#include "device/frameworks/Foundation/property_list.hpp"
#include "device/system/work_queue.hpp"

NSString* const PHPhotosErrorDomain = @"PHPhotosErrorDomain";

namespace {

using device::PhotoDatabase;
using Requests = std::vector<std::function<void(PhotoDatabase&)>>;

constexpr NSInteger kInternalError = -1;

/// Null outside of a change block.
thread_local Requests* requestsOfChangeBlock = nullptr;

NSError* errorOf(const std::string& reason) {
  NSDictionary* info = [NSDictionary dictionaryWithObject:device::stringOf(reason)
                                                   forKey:NSLocalizedDescriptionKey];
  return [NSError errorWithDomain:PHPhotosErrorDomain code:kInternalError userInfo:info];
}

void perform(void (^changes)(void), void (^handler)(BOOL, NSError*)) {
  Requests requests;
  requestsOfChangeBlock = &requests;
  changes();
  requestsOfChangeBlock = nullptr;

  PhotoDatabase& library = device::sharedPhotoDatabase();
  const std::optional<std::string> failure = library.tryTransaction([&] {
    for (const auto& request : requests) request(library);
  });
  if (handler) handler(!failure, failure ? errorOf(*failure) : nil);
}

}  // namespace

@implementation PHPhotoLibrary

+ (PHPhotoLibrary*)sharedPhotoLibrary {
  static PHPhotoLibrary* const library = [PHPhotoLibrary new];
  return library;
}

- (void)performChanges:(void (^)(void))changes completionHandler:(void (^)(BOOL, NSError*))handler {
  if (requestsOfChangeBlock) {
    [NSException raise:NSInternalInconsistencyException
                format:@"-[PHPhotoLibrary performChanges:completionHandler:] may not be called from within "
                       @"the change block of another"];
  }
  static device::WorkQueue* const queue = new device::WorkQueue;
  queue->post([changes = Block_copy(changes), handler = Block_copy(handler)] {
    perform(changes, handler);
    Block_release(changes);
    Block_release(handler);
  });
}

+ (Requests&)_requests {
  if (!requestsOfChangeBlock) {
    [NSException raise:NSInternalInconsistencyException
                format:@"This method can only be called from inside of "
                       @"-[PHPhotoLibrary performChanges:completionHandler:]"];
  }
  return *requestsOfChangeBlock;
}

@end
