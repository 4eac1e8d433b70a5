#pragma once

#import "device/frameworks/UIKit/UIControls.h"

@class UINavigationBar;

@interface UIBarButtonItem : NSObject {
  NSString* _title;
  id _target;
  SEL _action;
}
- (id)initWithTitle:(NSString*)title style:(NSInteger)style target:(id)target action:(SEL)action;
@property(nonatomic, copy) NSString* title;
/// Not retained.
@property(nonatomic, assign) id target;
@property(nonatomic) SEL action;
@end

@interface UINavigationItem : NSObject {
  NSString* _title;
  UIBarButtonItem* _rightBarButtonItem;
  UINavigationBar* _navigationBar;
}
@property(nonatomic, copy) NSString* title;
@property(nonatomic, retain) UIBarButtonItem* rightBarButtonItem;
/// The bar that shows the item. Not retained.
@property(nonatomic, assign, setter=_setNavigationBar:) UINavigationBar* _navigationBar;
@end

/// Shows the last of its items, and a button that leads back to the one before. That button's
/// accessibility identifier is "BackButton".
@interface UINavigationBar : UIView {
  NSArray* _items;
  id _delegate;
}
@property(nonatomic, copy) NSArray* items;
@property(nonatomic, readonly) UINavigationItem* topItem;
@property(nonatomic, readonly) UINavigationItem* backItem;
@property(nonatomic, assign) id delegate;
@end

@interface NSObject (UINavigationBarDelegate)
- (void)_navigationBarWantsBack:(UINavigationBar*)bar;
@end

@interface UITabBarItem : NSObject {
  NSString* _title;
}
@property(nonatomic, copy) NSString* title;
@end

/// The button of one of a tab bar's items.
@interface UITabBarButton : UIButton
@end

@interface UITabBar : UIView {
  NSArray* _items;
  id _delegate;
}
/// Nil before they are set.
@property(nonatomic, copy) NSArray* items;
@property(nonatomic, assign) id delegate;
@end

@interface NSObject (UITabBarDelegate)
- (void)tabBar:(UITabBar*)bar didSelectItem:(UITabBarItem*)item;
@end
