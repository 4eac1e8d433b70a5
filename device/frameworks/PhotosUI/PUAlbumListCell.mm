#import "device/frameworks/PhotosUI/PUAlbumListCell.h"

#import "device/frameworks/PhotosUI/PXCollectionsDataSourceManager.h"

namespace {

constexpr CGFloat kStackSize = 163;
constexpr CGFloat kTextSpacing = 4;
constexpr CGFloat kTextHeight = 20;
constexpr CGFloat kDeleteButtonSize = 29;
constexpr CGFloat kStackOffset = 4;

}  // namespace

@implementation PUStackView

- (void)_setColors:(NSArray*)colors {
  for (UIView* photo in [self subviews]) [photo removeFromSuperview];
  for (UIColor* color in [colors reverseObjectEnumerator]) {
    UIView* photo = [[[UIView alloc] init] autorelease];
    [photo setBackgroundColor:color];
    [self addSubview:photo];
  }
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGSize size = [self bounds].size;
  CGFloat inset = kStackOffset * static_cast<CGFloat>([_subviews count]);
  for (UIView* photo in [self subviews]) {
    inset -= kStackOffset;
    [photo setFrame:CGRectMake(inset, inset, size.width - 2 * inset, size.height - 2 * inset)];
  }
}

@end

@implementation PXUIButton
@end

@implementation PUAlbumListCellContentView

@synthesize title = _title;
@synthesize stackView = _stackView;
@synthesize _stackSize = _stackSize;
@synthesize _titleTextField = _titleTextField;
@synthesize _subtitleLabel = _subtitleLabel;
@synthesize _deleteButton = _deleteButton;
@synthesize delegate = _delegate;
@synthesize showsDeleteButtonWhileEditing = _showsDeleteButtonWhileEditing;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _stackView = [[PUStackView alloc] init];
  [_stackView setBackgroundColor:[UIColor colorWithWhite:0.9 alpha:1]];
  _titleTextField = [[UITextField alloc] init];
  [_titleTextField setUserInteractionEnabled:NO];
  _subtitleLabel = [[UILabel alloc] init];
  [self addSubview:_stackView];
  [self addSubview:_titleTextField];
  [self addSubview:_subtitleLabel];
  return self;
}

- (void)dealloc {
  [_stackView release];
  [_titleTextField release];
  [_subtitleLabel release];
  [_deleteButton release];
  [_title release];
  [super dealloc];
}

- (void)setTitle:(NSString*)title {
  [_title autorelease];
  _title = [title copy];
  [_titleTextField setText:title];
  [self setNeedsLayout];
}

- (void)_setStackSize:(CGSize)size {
  _stackSize = size;
  [self setNeedsLayout];
}

- (NSString*)subtitle {
  return [_subtitleLabel text];
}

- (void)setSubtitle:(NSString*)subtitle {
  if ([subtitle isEqualToString:[self subtitle]]) return;
  [_subtitleLabel setText:subtitle];
  [self setNeedsLayout];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  _editing = editing;
  [_deleteButton removeFromSuperview];
  [_deleteButton release];
  _deleteButton = nil;
  if (editing && _showsDeleteButtonWhileEditing) [self _addDeleteButton];
  [self setNeedsLayout];
}

- (void)_addDeleteButton {
  _deleteButton = [[PXUIButton buttonWithType:0] retain];
  [_deleteButton setAccessibilityLabel:[@"Delete " stringByAppendingString:[_titleTextField text]]];
  [_deleteButton addTarget:self
                    action:@selector(_deleteButtonTapped:)
          forControlEvents:UIControlEventTouchUpInside];
  [self addSubview:_deleteButton];
}

- (void)_deleteButtonTapped:(id)sender {
  [_delegate albumListCellContentView:self performDeleteAction:sender];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  const CGFloat width = [self bounds].size.width;
  const bool hasSize = !CGSizeEqualToSize(_stackSize, CGSizeZero);
  const CGSize stack = hasSize ? _stackSize : CGSizeMake(width, width);
  const CGFloat top = stack.height + kTextSpacing;
  [_stackView setFrame:{CGPointZero, stack}];
  [_titleTextField setFrame:CGRectMake(0, top, width, kTextHeight)];
  [_subtitleLabel setFrame:CGRectMake(0, top + kTextHeight, width, kTextHeight)];
  [_deleteButton setFrame:CGRectMake(0, 0, kDeleteButtonSize, kDeleteButtonSize)];
}

- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer*)recognizer {
  return YES;
}

@end

@implementation PUAlbumListCell

@synthesize albumListCellContentView = _albumListCellContentView;

- (id)initWithFrame:(CGRect)frame {
  self = [super initWithFrame:frame];
  if (!self) return nil;
  _albumListCellContentView = [[PUAlbumListCellContentView alloc] init];
  [[self contentView] addSubview:_albumListCellContentView];
  return self;
}

- (void)dealloc {
  [_albumListCellContentView release];
  [super dealloc];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_albumListCellContentView setFrame:[[self contentView] bounds]];
}

@end

@implementation PUAlbumListCellContentViewHelperConfiguration

- (CGSize)stackSize {
  return CGSizeMake(kStackSize, kStackSize);
}

@end

@implementation PUAlbumListCellContentViewHelper

- (id)init {
  self = [super init];
  if (self) _configuration = [[PUAlbumListCellContentViewHelperConfiguration alloc] init];
  return self;
}

- (void)dealloc {
  [_configuration release];
  [super dealloc];
}

- (CGSize)albumCellSize {
  const CGSize stack = [_configuration stackSize];
  return CGSizeMake(stack.width, stack.height + kTextSpacing + 2 * kTextHeight);
}

- (NSString*)subtitleForCollection:(PHCollection*)collection {
  const NSUInteger count = [collection isKindOfClass:[PHAssetCollection class]]
                               ? [PUAssetsInCollection((PHAssetCollection*)collection) count]
                               : [[(PHCollectionList*)collection collections] count];
  return [NSString stringWithFormat:@"%lu", static_cast<unsigned long>(count)];
}

- (NSArray*)_colorsOfCollection:(PHCollection*)collection {
  NSMutableArray* colors = [NSMutableArray array];
  if (![collection isKindOfClass:[PHAssetCollection class]]) return colors;
  PHFetchResult* keyAssets = [PHAsset fetchKeyAssetsInAssetCollection:(PHAssetCollection*)collection
                                                              options:nil];
  for (PHAsset* asset in keyAssets) [colors addObject:[asset _pixelColor]];
  return colors;
}

- (void)_fill:(PUAlbumListCellContentView*)tile with:(PHCollection*)collection {
  [tile _setStackSize:[_configuration stackSize]];
  [tile setTitle:[collection localizedTitle]];
  [[tile stackView] _setColors:[self _colorsOfCollection:collection]];
  // Only what the owner made can be deleted.
  [tile
      setShowsDeleteButtonWhileEditing:[collection canPerformEditOperation:PHCollectionEditOperationDelete]];
}

@end
