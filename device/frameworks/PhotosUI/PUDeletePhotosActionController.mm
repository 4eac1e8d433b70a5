#import "device/frameworks/PhotosUI/PUDeletePhotosActionController.h"

#import "device/frameworks/PhotosUI/PULibraryChange.h"
#import "device/frameworks/PhotosUI/PUPhotosGridViewController.h"

@implementation PUDeletePhotosActionController

- (id)initWithAssets:(NSArray*)assets {
  self = [super init];
  if (self) _assets = [assets copy];
  return self;
}

- (void)dealloc {
  [_assets release];
  [super dealloc];
}

- (BOOL)shouldSkipDeleteConfirmation {
  return NO;
}

- (void)performFrom:(UIViewController*)controller completion:(void (^)(void))done {
  NSArray* const users = [NSArray arrayWithObjects:self, controller, nil];
  if ([self shouldSkipDeleteConfirmation]) return [self _deleteFor:users completion:done];
  UIAlertController* sheet = [UIAlertController alertControllerWithTitle:nil
                                                                 message:nil
                                                          preferredStyle:UIAlertControllerStyleActionSheet];
  // The sheet's blocks keep no object.
  [users retain];
  NSString* title = [@"Delete " stringByAppendingString:PUNumberOfPhotos([_assets count])];
  [sheet addAction:[UIAlertAction actionWithTitle:title
                                            style:UIAlertActionStyleDestructive
                                          handler:^(UIAlertAction*) {
                                            [self _deleteFor:users completion:done];
                                            [users release];
                                          }]];
  [sheet addAction:[UIAlertAction actionWithTitle:@"Cancel"
                                            style:UIAlertActionStyleCancel
                                          handler:^(UIAlertAction*) {
                                            [users release];
                                          }]];
  UIPopoverPresentationController* popover = [sheet popoverPresentationController];
  [popover setSourceView:[controller view]];
  [popover setSourceRect:[[controller view] bounds]];
  [controller presentViewController:sheet animated:YES completion:nil];
}

- (void)_deleteFor:(NSArray*)users completion:(void (^)(void))done {
  NSArray* const assets = _assets;
  PUChangeLibrary(
      users,
      ^{
        [PHAssetChangeRequest deleteAssets:assets];
      },
      done);
}

@end
