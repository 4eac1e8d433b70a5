#import "device/frameworks/UIKit/UIBars.h"

namespace {

constexpr CGFloat kMargin = 16;
constexpr CGFloat kButtonWidth = 80;
constexpr CGFloat kBarHeight = 44;

void removeAllSubviews(UIView* view) {
  for (UIView* subview in [view subviews]) [subview removeFromSuperview];
}

UIButton* addBarButton(UIView* bar, NSString* title, CGFloat x, id target, SEL action) {
  UIButton* button = [UIButton buttonWithType:0];
  [button setTitle:title forState:0];
  [button setFrame:CGRectMake(x, 0, kButtonWidth, kBarHeight)];
  [button addTarget:target action:action forControlEvents:UIControlEventTouchUpInside];
  [bar addSubview:button];
  return button;
}

}  // namespace

@implementation UIBarButtonItem

@synthesize title = _title;
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

- (void)dealloc {
  [_title release];
  [super dealloc];
}

@end

@implementation UINavigationItem

@synthesize title = _title;
@synthesize rightBarButtonItem = _rightBarButtonItem;
@synthesize _navigationBar = _navigationBar;

- (void)dealloc {
  [_title release];
  [_rightBarButtonItem release];
  [super dealloc];
}

- (void)setTitle:(NSString*)title {
  [_title autorelease];
  _title = [title copy];
  [_navigationBar setNeedsLayout];
}

- (void)setRightBarButtonItem:(UIBarButtonItem*)item {
  [_rightBarButtonItem autorelease];
  _rightBarButtonItem = [item retain];
  [_navigationBar setNeedsLayout];
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
  const CGFloat right = _bounds.size.width - kButtonWidth - kMargin;
  UINavigationItem* top = [self topItem];
  if (UINavigationItem* back = [self backItem]) {
    NSString* title = [[back title] length] ? [back title] : @"Back";
    UIButton* button = addBarButton(self, title, kMargin, self, @selector(_backTapped));
    [button setAccessibilityIdentifier:@"BackButton"];
  }
  UILabel* label = [[[UILabel alloc] init] autorelease];
  [label setFrame:CGRectMake(kMargin + kButtonWidth, 0, right - kMargin - kButtonWidth, kBarHeight)];
  [label setText:[top title]];
  [self addSubview:label];
  if (UIBarButtonItem* item = [top rightBarButtonItem]) {
    addBarButton(self, [item title], right, [item target], [item action]);
  }
  // The new subviews have marked the bar again.
  _needsLayout = NO;
}

- (void)_backTapped {
  [_delegate _navigationBarWantsBack:self];
}

@end

@implementation UITabBarItem

@synthesize title = _title;

- (void)dealloc {
  [_title release];
  [super dealloc];
}

@end

@implementation UITabBarButton
@end

@implementation UITabBar

@synthesize items = _items;
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

- (void)_buttonTapped:(UITabBarButton*)button {
  [_delegate tabBar:self didSelectItem:[_items objectAtIndex:[_subviews indexOfObjectIdenticalTo:button]]];
}

@end
