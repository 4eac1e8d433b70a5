#pragma once

#import "device/frameworks/UIKit/CoreGraphics.h"

enum UIUserInterfaceIdiom : NSInteger { UIUserInterfaceIdiomPhone = 0, UIUserInterfaceIdiomPad = 1 };

@interface UIScreen : NSObject
+ (UIScreen*)mainScreen;
/// In points.
- (CGRect)bounds;
@end

@interface _UITapticEngine : NSObject {
  NSMutableArray* _felt;
}
- (void)actuateFeedback:(NSInteger)feedback;
/// The NSNumbers of all feedback so far, oldest first.
- (NSArray*)_feltFeedback;
@end

enum UIDeviceOrientation : NSInteger {
  UIDeviceOrientationPortrait = 1,
  UIDeviceOrientationLandscapeLeft = 3,
  UIDeviceOrientationLandscapeRight = 4,
};

@interface UIDevice : NSObject {
  _UITapticEngine* _tapticEngine;
  NSInteger _orientation;
  NSInteger _userInterfaceIdiom;
}
/// How the phone is held.
@property(nonatomic, setter=_setOrientation:) NSInteger orientation;
+ (UIDevice*)currentDevice;
/// Whether it is a phone, as at first, or a pad.
@property(nonatomic, setter=_setUserInterfaceIdiom:) NSInteger userInterfaceIdiom;
- (_UITapticEngine*)_tapticEngine;
@end
