#pragma once

#import "device/frameworks/UIKit/UIControls.h"

@class UIImage, UINavigationBar;

@interface UIBarItem : NSObject {
  NSString* _title;
  UIImage* _image;
  NSInteger _tag;
  BOOL _enabled;
}
@property(nonatomic, copy) NSString* title;
@property(nonatomic, retain) UIImage* image;
@property(nonatomic) NSInteger tag;
@property(nonatomic, getter=isEnabled) BOOL enabled;
/// Told after each change of what a bar shows of it.
- (void)_update;
@end

@interface UIBarButtonItem : UIBarItem {
  id _target;
  SEL _action;
  UIButton* _button;
}
- (id)initWithTitle:(NSString*)title style:(NSInteger)style target:(id)target action:(SEL)action;
- (id)initWithImage:(UIImage*)image style:(NSInteger)style target:(id)target action:(SEL)action;
/// Its title is what a person calls the system's picture.
- (id)initWithBarButtonSystemItem:(NSInteger)item target:(id)target action:(SEL)action;
/// Not retained.
@property(nonatomic, assign) id target;
@property(nonatomic) SEL action;
/// What the one bar that shows the item puts in its place: as wide as it needs, its image at most 28 points.
@property(nonatomic, readonly) UIButton* _button;
@end

@interface UINavigationItem : NSObject {
  NSString* _title;
  NSArray* _leftBarButtonItems;
  NSArray* _rightBarButtonItems;
  UINavigationBar* _navigationBar;
}
@property(nonatomic, copy) NSString* title;
// The first item is the outermost one; nil when there are none. Setting a single one replaces all of its
// side.
@property(nonatomic, copy) NSArray* leftBarButtonItems;
@property(nonatomic, copy) NSArray* rightBarButtonItems;
@property(nonatomic, readonly) UIBarButtonItem* leftBarButtonItem;
@property(nonatomic, retain) UIBarButtonItem* rightBarButtonItem;
/// The bar that shows the item. Not retained.
@property(nonatomic, assign, setter=_setNavigationBar:) UINavigationBar* _navigationBar;
@end

/// Shows the last of its items, and unless that has left items, a button that leads back to the one before.
/// That button's accessibility identifier is "BackButton".
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

@interface UIToolbar : UIView {
  NSArray* _items;
}
@property(nonatomic, copy) NSArray* items;
@end

@interface UITabBarItem : UIBarItem
@end

/// The button of one of a tab bar's items.
@interface UITabBarButton : UIButton
@end

@interface UITabBar : UIView {
  NSArray* _items;
  UITabBarItem* _selectedItem;
  id _delegate;
}
/// Nil before they are set.
@property(nonatomic, copy) NSArray* items;
/// Told apart from the others by its colour.
@property(nonatomic, assign) UITabBarItem* selectedItem;
@property(nonatomic, assign) id delegate;
@end

@interface NSObject (UITabBarDelegate)
- (void)tabBar:(UITabBar*)bar didSelectItem:(UITabBarItem*)item;
@end
