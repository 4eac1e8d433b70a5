#import "device/frameworks/PhotosUI/PXGadgetViewController.h"

#include <algorithm>

namespace {
NSString* const kCell = @"PXGadgetCell";
constexpr CGFloat kHeadingHeight = 44;
constexpr CGFloat kAccessoryWidth = 80;
constexpr CGFloat kSpacing = 16;
}  // namespace

/// Holds a gadget's view, and above it a heading where there is one.
@interface PXGadgetCell : UICollectionViewCell {
  UILabel* _heading;
  UIButton* _accessory;
  UIView* _gadgetView;
}
- (void)_setGadgetView:(UIView*)view;
- (void)_setHeadingOf:(id<PXGadget>)gadget;
@end

@implementation PXGadgetCell

- (void)dealloc {
  [_heading release];
  [_accessory release];
  [_gadgetView release];
  [super dealloc];
}

- (void)prepareForReuse {
  [super prepareForReuse];
  for (UIView* subview in [[self contentView] subviews]) [subview removeFromSuperview];
}

- (void)_setGadgetView:(UIView*)view {
  [_gadgetView autorelease];
  _gadgetView = [view retain];
  [[self contentView] addSubview:view];
  [self setNeedsLayout];
}

- (void)_setHeadingOf:(id<PXGadget>)gadget {
  [_heading release];
  _heading = [[UILabel alloc] init];
  [_heading setText:[gadget localizedTitle]];
  [[self contentView] addSubview:_heading];
  [_accessory release];
  _accessory = nil;
  if (![gadget respondsToSelector:@selector(accessoryButtonTitle)]) return;
  if (![gadget accessoryButtonTitle]) return;
  _accessory = [[UIButton buttonWithType:0] retain];
  [_accessory setTitle:[gadget accessoryButtonTitle] forState:0];
  [_accessory addTarget:gadget
                 action:@selector(userDidSelectAccessoryButton:)
       forControlEvents:UIControlEventTouchUpInside];
  [[self contentView] addSubview:_accessory];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGSize size = [self bounds].size;
  const CGFloat top = _heading ? kHeadingHeight : 0;
  const CGFloat right = size.width - kAccessoryWidth;
  [_heading setFrame:CGRectMake(kSpacing, 0, right - kSpacing, top)];
  [_accessory setFrame:CGRectMake(right, 0, kAccessoryWidth, top)];
  [_gadgetView setFrame:CGRectMake(0, top, size.width, size.height - top)];
}

@end

@implementation PXSectionedDataSource
@end

@implementation PXGadgetDataSource

@synthesize gadgets = _gadgets;

- (void)dealloc {
  [_gadgets release];
  [super dealloc];
}

@end

@implementation PXGadgetViewController

- (id)init {
  UICollectionViewFlowLayout* layout = [[[UICollectionViewFlowLayout alloc] init] autorelease];
  [layout _setSpacing:0];
  self = [super initWithCollectionViewLayout:layout];
  if (self) _dataSource = [[PXGadgetDataSource alloc] init];
  return self;
}

- (void)dealloc {
  [_dataSource release];
  [_gadgets release];
  [super dealloc];
}

- (void)viewDidLoad {
  [super viewDidLoad];
  [[self collectionView] registerClass:[PXGadgetCell class] forCellWithReuseIdentifier:kCell];
}

- (NSArray*)_currentGadgets {
  return [NSArray array];
}

- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  [_dataSource _setGadgets:[self _currentGadgets]];
  [self _show:[_dataSource gadgets]];
}

- (void)_show:(NSArray*)gadgets {
  // The sizes of those that stay may be others now.
  [[self collectionView] setNeedsLayout];
  if ([gadgets isEqualToArray:_gadgets]) return;
  [_gadgets autorelease];
  _gadgets = [gadgets copy];
  for (UIViewController* child in [self childViewControllers]) [child removeFromParentViewController];
  for (id gadget in _gadgets) {
    if ([gadget isKindOfClass:[UIViewController class]]) [self addChildViewController:gadget];
  }
  [[self collectionView] reloadData];
}

- (id)_gadgetAtIndexPath:(NSIndexPath*)path {
  if (!path) [NSException raise:NSInvalidArgumentException format:@"no index path for a gadget"];
  return [_gadgets objectAtIndex:static_cast<NSUInteger>([path item])];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return static_cast<NSInteger>([_gadgets count]);
}

- (PXGadgetCell*)_cellOfGadgetAtIndexPath:(NSIndexPath*)path {
  PXGadgetCell* cell = [[self collectionView] dequeueReusableCellWithReuseIdentifier:kCell forIndexPath:path];
  [cell _setGadgetView:[[self _gadgetAtIndexPath:path] contentView]];
  return cell;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  PXGadgetCell* cell = [self _cellOfGadgetAtIndexPath:path];
  id<PXGadget> gadget = [self _gadgetAtIndexPath:path];
  if ([gadget respondsToSelector:@selector(localizedTitle)]) [cell _setHeadingOf:gadget];
  return cell;
}

- (CGSize)collectionView:(UICollectionView*)view
                    layout:(UICollectionViewLayout*)layout
    sizeForItemAtIndexPath:(NSIndexPath*)path {
  id<PXGadget> gadget = [self _gadgetAtIndexPath:path];
  CGSize size = [gadget sizeThatFits:[view bounds].size];
  if ([gadget respondsToSelector:@selector(localizedTitle)]) size.height += kHeadingHeight;
  return size;
}

@end

@implementation PXHorizontalCollectionGadget

- (id)init {
  self = [super init];
  if (!self) return nil;
  [[[self collectionView] collectionViewLayout] setScrollDirection:UICollectionViewScrollDirectionHorizontal];
  [[[self collectionView] collectionViewLayout] _setSpacing:kSpacing];
  return self;
}

- (NSUInteger)gadgetType {
  return PXGadgetTypeHorizontalCollection;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  return [self _cellOfGadgetAtIndexPath:path];
}

- (UIView*)contentView {
  return [self view];
}

- (CGSize)sizeThatFits:(CGSize)size {
  CGFloat height = 0;
  for (id<PXGadget> gadget in _gadgets) height = std::max(height, [gadget sizeThatFits:size].height);
  return CGSizeMake(size.width, height + 2 * kSpacing);
}

@end
