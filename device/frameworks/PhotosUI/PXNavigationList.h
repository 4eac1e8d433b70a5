#pragma once

#import "device/frameworks/PhotosUI/PXCollectionsDataSourceManager.h"
#import "device/frameworks/PhotosUI/PXGadgetViewController.h"

/// A row: a title at its left, and at its right colours as small squares and what there is to add.
@interface PXNavigationListCell : UICollectionViewCell {
  UILabel* _titleLabel;
  UILabel* _detailLabel;
  NSMutableArray* _squares;
}
@property(nonatomic, readonly) UILabel* titleLabel;
@property(nonatomic, readonly) UILabel* detailLabel;
- (void)_setColors:(NSArray*)colors;
@end

/// Collections under one another, each with the number of its photos. Touching one opens it.
@interface PXNavigationListController : UICollectionViewController {
  PXPhotoKitCollectionsDataSourceManager* _dataSourceManager;
  NSArray* _collections;
}
@property(nonatomic, retain, setter=_setDataSourceManager:)
    PXPhotoKitCollectionsDataSourceManager* _dataSourceManager;
@end

@interface PXNavigationListGadget : PXNavigationListController <PXGadget>
@end
