#import "device/frameworks/UIKit/UIAlertController.h"

#import "device/frameworks/UIKit/UIDevice.h"

namespace {

constexpr CGFloat kPanelWidth = 270;
constexpr CGFloat kRowHeight = 44;

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

- (void)dealloc {
  [_sourceView release];
  [super dealloc];
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
  if (![self _isPopover] || [_popover sourceView]) return;
  [NSException
       raise:NSGenericException
      format:@"UIPopoverPresentationController (%@) should have a non-nil sourceView or barButtonItem set "
             @"before the presentation occurs.",
             _popover];
}

// The view: a panel of rows in the middle of the screen, or at its bottom for a sheet.

- (void)loadView {
  NSMutableArray* rows = [NSMutableArray array];
  [self _addLabel:[self title] to:rows];
  [self _addLabel:_message to:rows];
  [rows addObjectsFromArray:_textFields];
  for (NSUInteger index = 0; index < [_actions count]; ++index) {
    UIButton* button = [UIButton buttonWithType:0];
    [button setTitle:[[_actions objectAtIndex:index] title] forState:0];
    [button setTag:static_cast<NSInteger>(index)];
    [button addTarget:self action:@selector(_buttonTapped:) forControlEvents:UIControlEventTouchUpInside];
    [rows addObject:button];
  }
  const CGRect screen = [[UIScreen mainScreen] bounds];
  const CGFloat height = kRowHeight * static_cast<CGFloat>([rows count]);
  const CGFloat free = screen.size.height - height;
  const CGFloat top = _preferredStyle == UIAlertControllerStyleAlert ? free / 2 : free;
  const CGRect frame = CGRectMake((screen.size.width - kPanelWidth) / 2, top, kPanelWidth, height);
  UIView* panel = [[[_UIAlertControllerView alloc] initWithFrame:frame] autorelease];
  CGFloat y = 0;
  for (UIView* row in rows) {
    [row setFrame:CGRectMake(0, y, kPanelWidth, kRowHeight)];
    [panel addSubview:row];
    y += kRowHeight;
  }
  [self setView:panel];
}

- (void)_addLabel:(NSString*)text to:(NSMutableArray*)rows {
  if (![text length]) return;
  UILabel* label = [[[UILabel alloc] init] autorelease];
  [label setText:text];
  [rows addObject:label];
}

- (void)_buttonTapped:(UIButton*)button {
  UIAlertAction* action =
      [[[_actions objectAtIndex:static_cast<NSUInteger>([button tag])] retain] autorelease];
  [[self retain] autorelease];
  [self dismissViewControllerAnimated:YES completion:nil];
  [action _perform];
}

@end
