#pragma once

#import "device/frameworks/UIKit/UIKit.h"

@interface PUNavigationController : UINavigationController
/// Whose items its toolbar shows.
@property(nonatomic, readonly) UIViewController* _currentToolbarViewController;
@end

/// The Photos app's tabs: "Photos", "Memories", "Shared" and "Albums", the last of which is selected at
/// first. The bar is shown or hidden as a controller wants it when that comes on top, and only then.
@interface PUTabbedLibraryViewController : UITabBarController
/// The content modes, each an int's NSNumber, of the tabs that are not to be made. Asked once.
- (NSArray*)excludedContentModes;
@property(nonatomic, readonly) UINavigationController* selectedNavigationController;
/// For when another tab is selected, or another controller comes on top of the selected one.
- (void)_updateTabBar;
@end

@interface PLPhotosApplication : UIApplication {
  /// The window's.
  PUTabbedLibraryViewController* _tabbedLibraryViewController;
}
- (PUTabbedLibraryViewController*)_tabbedLibraryViewController;
@end
