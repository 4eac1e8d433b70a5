#import "device/frameworks/UIKit/UICollectionViewController.h"

#import "device/frameworks/UIKit/UIDevice.h"

@interface UICollectionViewControllerWrapperView : UIView
@end

@implementation UICollectionViewControllerWrapperView

- (void)layoutSubviews {
  [super layoutSubviews];
  [[_subviews objectAtIndex:0] setFrame:[self bounds]];
}

@end

@implementation UICollectionViewController

- (id)initWithCollectionViewLayout:(UICollectionViewLayout*)layout {
  self = [super init];
  if (!self) return nil;
  const CGRect frame = [[UIScreen mainScreen] bounds];
  _collectionView = [[UICollectionView alloc] initWithFrame:frame collectionViewLayout:layout];
  [_collectionView setDataSource:self];
  [_collectionView setDelegate:self];
  return self;
}

- (void)dealloc {
  [_collectionView setDelegate:nil];
  [_collectionView setDataSource:nil];
  [_collectionView release];
  [super dealloc];
}

- (UICollectionView*)collectionView {
  return _collectionView;
}

- (void)loadView {
  const CGRect frame = [_collectionView frame];
  [self setView:[[[UICollectionViewControllerWrapperView alloc] initWithFrame:frame] autorelease]];
  [[self view] addSubview:_collectionView];
}

- (NSInteger)collectionView:(UICollectionView*)view numberOfItemsInSection:(NSInteger)section {
  return 0;
}

- (UICollectionViewCell*)collectionView:(UICollectionView*)view cellForItemAtIndexPath:(NSIndexPath*)path {
  return nil;
}

@end
