#import "device/frameworks/PhotosUI/PULibraryChange.h"

#include <Block.h>

#include "device/frameworks/Dispatch.hpp"

namespace {

struct End {
  NSArray* objects;
  void (^done)(void);
};

void perform(void* context) {
  const auto* const end = static_cast<End*>(context);
  end->done();
  Block_release(end->done);
  [end->objects release];
  delete end;
}

}  // namespace

void PUChangeLibrary(NSArray* objects, void (^changes)(void), void (^done)(void)) {
  auto* const end = new End{[objects retain], Block_copy(done)};
  [[PHPhotoLibrary sharedPhotoLibrary] performChanges:changes
                                    completionHandler:^(BOOL, NSError*) {
                                      dispatch_async_f(&_dispatch_main_q, end, perform);
                                    }];
}
