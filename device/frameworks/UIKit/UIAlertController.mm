#import "device/frameworks/UIKit/UIAlertController.h"

#include <algorithm>

#import "device/frameworks/UIKit/UIDevice.h"

namespace {

constexpr CGFloat kAlertWidth = 270;
constexpr CGFloat kSheetWidth = 359;
constexpr CGFloat kRowHeight = 44;
constexpr CGFloat kMargin = 8;
/// From the top of the screen to the end of a bar button.
constexpr CGFloat kBelowBarButton = 88;
constexpr CGFloat kStatusBarHeight = 44;
constexpr CGFloat kHomeIndicator = 34;

void addLine(UIView* panel, CGFloat y, CGFloat width) {
  UIView* line = [[[UIView alloc] initWithFrame:CGRectMake(0, y, width, 0.5)] autorelease];
  [line setBackgroundColor:[UIColor colorWithWhite:0.75 alpha:1]];
  [panel addSubview:line];
}

}  // namespace

@interface _UIAlertControllerView : UIView
@end

@implementation _UIAlertControllerView
@end

@implementation UIAlertAction

@synthesize title = _title;
@synthesize style = _style;

+ (UIAlertAction*)actionWithTitle:(NSString*)title
                            style:(NSInteger)style
                          handler:(void (^)(UIAlertAction* action))handler {
  UIAlertAction* action = [[[self alloc] init] autorelease];
  action->_title = [title copy];
  action->_style = style;
  action->_handler = Block_copy(handler);
  return action;
}

- (void)dealloc {
  [_title release];
  Block_release(_handler);
  [super dealloc];
}

- (void)_perform {
  if (_handler) _handler(self);
}

@end

@implementation UIPopoverPresentationController

@synthesize sourceView = _sourceView;
@synthesize sourceRect = _sourceRect;
@synthesize barButtonItem = _barButtonItem;

- (void)dealloc {
  [_sourceView release];
  [_barButtonItem release];
  [super dealloc];
}

- (CGRect)_frameOfSize:(CGSize)size onScreen:(CGRect)screen {
  const CGFloat right = screen.size.width - size.width - kMargin;
  const CGFloat bottom = screen.size.height - size.height - kMargin;
  if (_barButtonItem) return {{right, std::min(kBelowBarButton, bottom)}, size};
  const CGPoint source = [_sourceView convertPoint:_sourceRect.origin toView:nil];
  const CGFloat below = source.y + _sourceRect.size.height;
  const CGFloat y = below <= bottom ? below : source.y - size.height;
  const CGFloat x = source.x + _sourceRect.size.width / 2 - size.width / 2;
  return {{std::clamp(x, kMargin, right), std::max(y, kMargin)}, size};
}

@end

@implementation UIAlertController

@synthesize message = _message;
@synthesize preferredStyle = _preferredStyle;

+ (UIAlertController*)alertControllerWithTitle:(NSString*)title
                                       message:(NSString*)message
                                preferredStyle:(NSInteger)style {
  UIAlertController* alert = [[[self alloc] init] autorelease];
  [alert setTitle:title];
  [alert setMessage:message];
  alert->_preferredStyle = style;
  return alert;
}

- (id)init {
  self = [super init];
  if (!self) return nil;
  _actions = [[NSMutableArray alloc] init];
  _textFields = [[NSMutableArray alloc] init];
  return self;
}

- (void)dealloc {
  [_message release];
  [_actions release];
  [_textFields release];
  [_popover release];
  [super dealloc];
}

- (NSArray*)actions {
  return [NSArray arrayWithArray:_actions];
}

- (NSArray*)textFields {
  return [_textFields count] ? [NSArray arrayWithArray:_textFields] : nil;
}

- (void)addAction:(UIAlertAction*)action {
  for (UIAlertAction* other in _actions) {
    if ([action style] != UIAlertActionStyleCancel || [other style] != UIAlertActionStyleCancel) continue;
    [NSException
         raise:NSInternalInconsistencyException
        format:@"UIAlertController can only have one action with a style of UIAlertActionStyleCancel"];
  }
  [_actions addObject:action];
}

- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField* field))handler {
  if (_preferredStyle != UIAlertControllerStyleAlert) {
    [NSException
         raise:NSInternalInconsistencyException
        format:@"Text fields can only be added to an alert controller of style UIAlertControllerStyleAlert"];
  }
  UITextField* field = [[[UITextField alloc] init] autorelease];
  [_textFields addObject:field];
  if (handler) handler(field);
}

- (BOOL)_isPopover {
  return _preferredStyle == UIAlertControllerStyleActionSheet &&
         [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
}

- (UIPopoverPresentationController*)popoverPresentationController {
  if (![self _isPopover]) return nil;
  if (!_popover) _popover = [[UIPopoverPresentationController alloc] init];
  return _popover;
}

- (void)_checkPresentation {
  [super _checkPresentation];
  if (![self _isPopover] || [_popover sourceView] || [_popover barButtonItem]) return;
  [NSException
       raise:NSGenericException
      format:@"UIPopoverPresentationController (%@) should have a non-nil sourceView or barButtonItem set "
             @"before the presentation occurs.",
             _popover];
}

// The view: a panel of rows in the middle of the screen, at its bottom for a sheet, or a popover.

- (void)loadView {
  NSMutableArray* rows = [NSMutableArray array];
  [self _addLabel:[self title] font:[UIFont boldSystemFontOfSize:17] to:rows];
  [self _addLabel:_message font:[UIFont systemFontOfSize:13] to:rows];
  for (UITextField* field in _textFields) {
    [field setBorderStyle:UITextBorderStyleRoundedRect];
    [rows addObject:field];
  }
  const NSUInteger firstButton = [rows count];
  // What cancels is the last one, wherever it was added.
  for (const bool cancels : {false, true}) [self _addButtonsThatCancel:cancels to:rows];

  const CGRect frame = [self _frameOfRows:[rows count]];
  UIView* panel = [[[_UIAlertControllerView alloc] initWithFrame:frame] autorelease];
  [panel setBackgroundColor:[UIColor whiteColor]];
  [[panel layer] setCornerRadius:14];
  const CGFloat height = frame.size.height / static_cast<CGFloat>([rows count]);
  for (NSUInteger index = 0; index < [rows count]; ++index) {
    UIView* row = [rows objectAtIndex:index];
    const CGFloat y = height * static_cast<CGFloat>(index);
    const CGFloat inset = index < firstButton ? 2 * kMargin : 0;
    [row setFrame:CGRectMake(inset, y, frame.size.width - 2 * inset, height)];
    [panel addSubview:row];
    if (index >= firstButton) addLine(panel, y, frame.size.width);
  }
  [self setView:panel];
}

- (CGRect)_frameOfRows:(NSUInteger)count {
  const CGRect screen = [[UIScreen mainScreen] bounds];
  const bool isSheet = _preferredStyle == UIAlertControllerStyleActionSheet && ![self _isPopover];
  const CGFloat width = isSheet ? kSheetWidth : kAlertWidth;
  // A phone would scroll what it has no room for.
  const CGFloat height = std::min(kRowHeight * static_cast<CGFloat>(count),
                                  screen.size.height - kStatusBarHeight - kHomeIndicator);
  const CGFloat free = screen.size.height - height;
  if ([self _isPopover]) return [_popover _frameOfSize:{width, height} onScreen:screen];
  return CGRectMake((screen.size.width - width) / 2, isSheet ? free - kHomeIndicator : free / 2, width,
                    height);
}

- (void)_addLabel:(NSString*)text font:(UIFont*)font to:(NSMutableArray*)rows {
  if (![text length]) return;
  UILabel* label = [[[UILabel alloc] init] autorelease];
  [label setText:text];
  [label setFont:font];
  [label setTextAlignment:NSTextAlignmentCenter];
  [label setAdjustsFontSizeToFitWidth:YES];
  [label setMinimumScaleFactor:0.5];
  [rows addObject:label];
}

- (void)_addButtonsThatCancel:(bool)cancels to:(NSMutableArray*)rows {
  for (NSUInteger index = 0; index < [_actions count]; ++index) {
    UIAlertAction* action = [_actions objectAtIndex:index];
    if (([action style] == UIAlertActionStyleCancel) != cancels) continue;
    UIButton* button = [UIButton buttonWithType:0];
    [button setTitle:[action title] forState:0];
    if ([action style] == UIAlertActionStyleDestructive) {
      [button setTitleColor:[UIColor colorWithRed:1 green:0.23 blue:0.19 alpha:1] forState:0];
    }
    [button setTag:static_cast<NSInteger>(index)];
    [button addTarget:self action:@selector(_buttonTapped:) forControlEvents:UIControlEventTouchUpInside];
    [rows addObject:button];
  }
}

- (void)_buttonTapped:(UIButton*)button {
  UIAlertAction* action =
      [[[_actions objectAtIndex:static_cast<NSUInteger>([button tag])] retain] autorelease];
  [[self retain] autorelease];
  [self dismissViewControllerAnimated:YES completion:nil];
  [action _perform];
}

@end
