#import "device/frameworks/UIKit/UIBars.h"

#include <algorithm>
#include <iterator>

#import "device/frameworks/UIKit/UIImage.h"

namespace {

constexpr CGFloat kMargin = 16;
constexpr CGFloat kButtonWidth = 80;
constexpr CGFloat kImageButtonWidth = 44;
constexpr CGFloat kImageSize = 28;
constexpr CGFloat kBarHeight = 44;

/// What a person calls the system's items, from UIBarButtonSystemItemDone on; the spaces say nothing.
NSString* const kSystemTitles[] = {
    @"Done",  @"Cancel",   @"Edit",      @"Save",   @"Add",     nil,     nil,       @"Compose", @"Reply",
    @"Share", @"Organize", @"Bookmarks", @"Search", @"Refresh", @"Stop", @"Camera", @"Delete",
};

/// A file's image, which nobody measures, fills what there is.
CGSize shownSize(UIImage* image) {
  const CGSize size = [image size];
  const CGFloat longest = std::max(size.width, size.height);
  if (longest == 0) return CGSizeMake(kImageSize, kImageSize);
  const CGFloat scale = std::min(kImageSize / longest, 1.0);
  return CGSizeMake(size.width * scale, size.height * scale);
}

void removeAllSubviews(UIView* view) {
  for (UIView* subview in [view subviews]) [subview removeFromSuperview];
}

}  // namespace

@implementation UIBarItem

@synthesize title = _title;
@synthesize image = _image;
@synthesize tag = _tag;
@synthesize enabled = _enabled;

- (id)init {
  self = [super init];
  if (self) _enabled = YES;
  return self;
}

- (void)dealloc {
  [_title release];
  [_image release];
  [super dealloc];
}

- (void)setTitle:(NSString*)title {
  [_title autorelease];
  _title = [title copy];
  [self _update];
}

- (void)setImage:(UIImage*)image {
  [_image autorelease];
  _image = [image retain];
  [self _update];
}

- (void)setEnabled:(BOOL)enabled {
  _enabled = enabled;
  [self _update];
}

- (void)_update {
}

@end

@implementation UIBarButtonItem

@synthesize target = _target;
@synthesize action = _action;

- (id)initWithTitle:(NSString*)title style:(NSInteger)style target:(id)target action:(SEL)action {
  self = [super init];
  if (!self) return nil;
  _title = [title copy];
  _target = target;
  _action = action;
  return self;
}

- (id)initWithImage:(UIImage*)image style:(NSInteger)style target:(id)target action:(SEL)action {
  self = [self initWithTitle:nil style:style target:target action:action];
  if (self) _image = [image retain];
  return self;
}

- (id)initWithBarButtonSystemItem:(NSInteger)item target:(id)target action:(SEL)action {
  const auto index = static_cast<std::size_t>(item);
  NSString* title = index < std::size(kSystemTitles) ? kSystemTitles[index] : nil;
  return [self initWithTitle:title style:0 target:target action:action];
}

- (void)dealloc {
  // Whoever still holds the button would send to an item that is gone.
  [_button setEnabled:NO];
  [_button removeFromSuperview];
  [_button release];
  [super dealloc];
}

- (UIButton*)_button {
  if (_button) return _button;
  _button = [[UIButton buttonWithType:0] retain];
  [_button addTarget:self action:@selector(_send) forControlEvents:UIControlEventTouchUpInside];
  [self _update];
  return _button;
}

- (void)_update {
  if (!_button) return;
  const CGRect bounds = CGRectMake(0, 0, _image ? kImageButtonWidth : kButtonWidth, kBarHeight);
  [_button setEnabled:_enabled];
  [_button setTitle:_image ? nil : _title forState:0];
  [_button setBounds:bounds];
  removeAllSubviews(_button);
  if (_image) {
    UIImageView* picture = [[[UIImageView alloc] initWithImage:_image] autorelease];
    [picture setBounds:{CGPointZero, shownSize(_image)}];
    [picture setCenter:CGRectGetCenter(bounds)];
    [_button addSubview:picture];
  }
  [[_button superview] setNeedsLayout];
}

- (void)_send {
  [[self retain] autorelease];
  if (_action) [[UITargetAction target:_target action:_action events:0] sendFrom:self];
}

@end

@implementation UINavigationItem

@synthesize title = _title;
@synthesize leftBarButtonItems = _leftBarButtonItems;
@synthesize rightBarButtonItems = _rightBarButtonItems;
@synthesize _navigationBar = _navigationBar;

- (void)dealloc {
  [_title release];
  [_leftBarButtonItems release];
  [_rightBarButtonItems release];
  [super dealloc];
}

- (void)setTitle:(NSString*)title {
  [_title autorelease];
  _title = [title copy];
  [_navigationBar setNeedsLayout];
}

- (void)setLeftBarButtonItems:(NSArray*)items {
  [_leftBarButtonItems autorelease];
  _leftBarButtonItems = [items count] ? [items copy] : nil;
  [_navigationBar setNeedsLayout];
}

- (void)setRightBarButtonItems:(NSArray*)items {
  [_rightBarButtonItems autorelease];
  _rightBarButtonItems = [items count] ? [items copy] : nil;
  [_navigationBar setNeedsLayout];
}

- (UIBarButtonItem*)leftBarButtonItem {
  return [_leftBarButtonItems firstObject];
}

- (UIBarButtonItem*)rightBarButtonItem {
  return [_rightBarButtonItems firstObject];
}

- (void)setRightBarButtonItem:(UIBarButtonItem*)item {
  [self setRightBarButtonItems:item ? [NSArray arrayWithObject:item] : nil];
}

@end

@implementation UINavigationBar

@synthesize items = _items;
@synthesize delegate = _delegate;

- (void)dealloc {
  for (UINavigationItem* item in _items) [item _setNavigationBar:nil];
  [_items release];
  [super dealloc];
}

- (void)setItems:(NSArray*)items {
  for (UINavigationItem* item in _items) [item _setNavigationBar:nil];
  [_items autorelease];
  _items = [items copy];
  for (UINavigationItem* item in _items) [item _setNavigationBar:self];
  [self setNeedsLayout];
}

- (UINavigationItem*)topItem {
  return [_items lastObject];
}

- (UINavigationItem*)backItem {
  const NSUInteger count = [_items count];
  return count > 1 ? [_items objectAtIndex:count - 2] : nil;
}

- (void)layoutSubviews {
  [super layoutSubviews];
  removeAllSubviews(self);
  UINavigationItem* top = [self topItem];
  CGFloat left = kMargin, right = _bounds.size.width - kMargin;
  if (![top leftBarButtonItems] && [self backItem]) {
    UIButton* back = [self _backButton];
    [back setFrame:CGRectMake(left, 0, kButtonWidth, kBarHeight)];
    [self addSubview:back];
    left += kButtonWidth;
  }
  for (UIBarButtonItem* item in [top leftBarButtonItems]) {
    const CGFloat width = [[item _button] bounds].size.width;
    [[item _button] setFrame:CGRectMake(left, 0, width, kBarHeight)];
    [self addSubview:[item _button]];
    left += width;
  }
  for (UIBarButtonItem* item in [top rightBarButtonItems]) {
    const CGFloat width = [[item _button] bounds].size.width;
    right -= width;
    [[item _button] setFrame:CGRectMake(right, 0, width, kBarHeight)];
    [self addSubview:[item _button]];
  }
  UILabel* label = [[[UILabel alloc] init] autorelease];
  [label setFrame:CGRectMake(left, 0, right - left, kBarHeight)];
  [label setText:[top title]];
  [label setTextAlignment:1];
  [self addSubview:label];
  // The new subviews have marked the bar again.
  _needsLayout = NO;
}

- (UIButton*)_backButton {
  NSString* title = [[self backItem] title];
  UIButton* button = [UIButton buttonWithType:0];
  [button setTitle:[title length] ? title : @"Back" forState:0];
  [button setAccessibilityIdentifier:@"BackButton"];
  [button addTarget:self action:@selector(_backTapped) forControlEvents:UIControlEventTouchUpInside];
  return button;
}

- (void)_backTapped {
  [_delegate _navigationBarWantsBack:self];
}

@end

@implementation UIToolbar

@synthesize items = _items;

- (void)dealloc {
  [_items release];
  [super dealloc];
}

- (void)setItems:(NSArray*)items {
  if (items == _items) return;
  [_items autorelease];
  _items = [items copy];
  removeAllSubviews(self);
  for (UIBarButtonItem* item in _items) [self addSubview:[item _button]];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGFloat share = _bounds.size.width / static_cast<CGFloat>([_subviews count]);
  CGFloat middle = share / 2;
  for (UIView* button in [self subviews]) {
    [button setCenter:{middle, kBarHeight / 2}];
    middle += share;
  }
}

@end

@implementation UITabBarItem
@end

@implementation UITabBarButton
@end

@implementation UITabBar

@synthesize items = _items;
@synthesize selectedItem = _selectedItem;
@synthesize delegate = _delegate;

- (void)dealloc {
  [_items release];
  [super dealloc];
}

- (void)setItems:(NSArray*)items {
  [_items autorelease];
  _items = [items copy];
  removeAllSubviews(self);
  for (UITabBarItem* item in _items) {
    UITabBarButton* button = [UITabBarButton buttonWithType:0];
    [button setTitle:[item title] forState:0];
    [button addTarget:self action:@selector(_buttonTapped:) forControlEvents:UIControlEventTouchUpInside];
    [self addSubview:button];
  }
  [self setSelectedItem:[_items firstObject]];
}

- (void)setSelectedItem:(UITabBarItem*)item {
  _selectedItem = item;
  for (UITabBarButton* button in [self subviews]) {
    UITabBarItem* other = [_items objectAtIndex:[_subviews indexOfObjectIdenticalTo:button]];
    [button setTitleColor:other == item ? nil : [UIColor colorWithWhite:0.55 alpha:1] forState:0];
  }
}

- (void)layoutSubviews {
  [super layoutSubviews];
  CGFloat x = 0;
  const CGFloat width = _bounds.size.width / static_cast<CGFloat>([_subviews count]);
  for (UIView* button in [self subviews]) {
    [button setFrame:CGRectMake(x, 0, width, kBarHeight)];
    x += width;
  }
}

/// The content beside it takes its place or gives it back.
- (void)setHidden:(BOOL)hidden {
  if (hidden == [self isHidden]) return;
  [super setHidden:hidden];
  [[self superview] setNeedsLayout];
  if (!hidden) [self setNeedsLayout];
}

- (void)_buttonTapped:(UITabBarButton*)button {
  [_delegate tabBar:self didSelectItem:[_items objectAtIndex:[_subviews indexOfObjectIdenticalTo:button]]];
}

@end
