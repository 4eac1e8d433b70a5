#pragma once

#import "device/frameworks/UIKit/UIKit.h"

@interface PUNavigationController : UINavigationController
/// Whose items its toolbar shows.
@property(nonatomic, readonly) UIViewController* _currentToolbarViewController;
@end

/// The Photos app's tabs, "Photos" and "Albums".
@interface PUTabbedLibraryViewController : UITabBarController
@property(nonatomic, readonly) UINavigationController* selectedNavigationController;
@end

@interface PLPhotosApplication : UIApplication {
  UIWindow* _window;
  PUTabbedLibraryViewController* _tabbedLibraryViewController;
}
- (PUTabbedLibraryViewController*)_tabbedLibraryViewController;
@end
