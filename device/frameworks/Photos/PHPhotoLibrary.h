#pragma once

#import <Foundation/Foundation.h>

#include <functional>
#include <vector>

#include "device/frameworks/Photos/photo_database.hpp"

extern NSString* const PHPhotosErrorDomain;

@interface PHPhotoLibrary : NSObject
+ (PHPhotoLibrary*)sharedPhotoLibrary;
/// What the first block requests happens as a whole after it, or not at all; then the second, which may be
/// nil, is told. Both run on the library's own thread, in the order of these calls. Raises within a change
/// block.
- (void)performChanges:(void (^)(void))changes
     completionHandler:(void (^)(BOOL success, NSError* error))handler;
/// What the change block that runs on this thread has requested so far. Raises outside of one.
+ (std::vector<std::function<void(device::PhotoDatabase&)>>&)_requests;
@end
