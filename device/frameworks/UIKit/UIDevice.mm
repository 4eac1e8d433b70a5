#import "device/frameworks/UIKit/UIDevice.h"

@implementation UIScreen

+ (UIScreen*)mainScreen {
  static UIScreen* const screen = [[self alloc] init];
  return screen;
}

- (CGRect)bounds {
  return CGRectMake(0, 0, 375, 812);
}

@end

@implementation _UITapticEngine

- (id)init {
  self = [super init];
  if (self) _felt = [[NSMutableArray alloc] init];
  return self;
}

- (void)dealloc {
  [_felt release];
  [super dealloc];
}

- (void)actuateFeedback:(NSInteger)feedback {
  [_felt addObject:[NSNumber numberWithInteger:feedback]];
}

- (NSArray*)_feltFeedback {
  return [NSArray arrayWithArray:_felt];
}

@end

@implementation UIDevice

@synthesize orientation = _orientation;
@synthesize userInterfaceIdiom = _userInterfaceIdiom;

+ (UIDevice*)currentDevice {
  static UIDevice* const device = [[self alloc] init];
  return device;
}

- (id)init {
  self = [super init];
  if (!self) return nil;
  _tapticEngine = [[_UITapticEngine alloc] init];
  _orientation = UIDeviceOrientationPortrait;
  return self;
}

- (void)dealloc {
  [_tapticEngine release];
  [super dealloc];
}

- (_UITapticEngine*)_tapticEngine {
  return _tapticEngine;
}

@end
