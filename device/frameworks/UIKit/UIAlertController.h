#pragma once

#import "device/frameworks/UIKit/UIViewController.h"

enum UIAlertControllerStyle : NSInteger {
  UIAlertControllerStyleActionSheet = 0,
  UIAlertControllerStyleAlert = 1,
};

enum UIAlertActionStyle : NSInteger {
  UIAlertActionStyleDefault = 0,
  UIAlertActionStyleCancel = 1,
  UIAlertActionStyleDestructive = 2,
};

@class UIAlertAction, UIBarButtonItem;

@interface UIAlertAction : NSObject {
  NSString* _title;
  NSInteger _style;
  void (^_handler)(UIAlertAction* action);
}
+ (UIAlertAction*)actionWithTitle:(NSString*)title
                            style:(NSInteger)style
                          handler:(void (^)(UIAlertAction* action))handler;
@property(nonatomic, readonly) NSString* title;
@property(nonatomic, readonly) NSInteger style;
- (void)_perform;
@end

@interface UIPopoverPresentationController : NSObject {
  UIView* _sourceView;
  CGRect _sourceRect;
  UIBarButtonItem* _barButtonItem;
}
@property(nonatomic, retain) UIView* sourceView;
@property(nonatomic) CGRect sourceRect;
@property(nonatomic, retain) UIBarButtonItem* barButtonItem;
/// Where on a screen a panel of that size lies: beside its source, and wholly on the screen.
- (CGRect)_frameOfSize:(CGSize)size onScreen:(CGRect)screen;
@end

/// Each of its buttons is a UIButton of its view; touching one dismisses the alert, then runs the handler.
@interface UIAlertController : UIViewController {
  NSString* _message;
  NSInteger _preferredStyle;
  NSMutableArray* _actions;
  NSMutableArray* _textFields;
  UIPopoverPresentationController* _popover;
}
+ (UIAlertController*)alertControllerWithTitle:(NSString*)title
                                       message:(NSString*)message
                                preferredStyle:(NSInteger)style;
@property(nonatomic, copy) NSString* message;
@property(nonatomic, readonly) NSInteger preferredStyle;
@property(nonatomic, readonly) NSArray* actions;
/// Nil when there are none.
@property(nonatomic, readonly) NSArray* textFields;
/// Nil but for an action sheet on a pad.
@property(nonatomic, readonly) UIPopoverPresentationController* popoverPresentationController;
- (void)addAction:(UIAlertAction*)action;
- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField* field))handler;
@end
