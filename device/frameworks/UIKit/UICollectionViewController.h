#pragma once

#import "device/frameworks/UIKit/UICollectionView.h"
#import "device/frameworks/UIKit/UIViewController.h"

/// The data source and delegate of a collection view that lies within its view.
@interface UICollectionViewController
    : UIViewController <UICollectionViewDataSource, UICollectionViewDelegate> {
  UICollectionView* _collectionView;
}
- (id)initWithCollectionViewLayout:(UICollectionViewLayout*)layout;
@property(nonatomic, readonly) UICollectionView* collectionView;
@end
