#pragma once

#import "device/frameworks/UIKit/UIKit.h"

enum PXGadgetType : NSUInteger {
  PXGadgetTypeAlbum = 1,
  PXGadgetTypeHorizontalCollection = 2,
  PXGadgetTypeNavigationList = 10,
};

/// A part of a screen that is made of parts.
@protocol PXGadget <NSObject>
- (NSUInteger)gadgetType;
- (UIView*)contentView;
- (CGSize)sizeThatFits:(CGSize)size;
@optional
/// A heading, and a button beside it unless it has no title.
- (NSString*)localizedTitle;
- (NSString*)accessoryButtonTitle;
- (void)userDidSelectAccessoryButton:(id)sender;
@end

@interface PXSectionedDataSource : NSObject
@end

@interface PXGadgetDataSource : PXSectionedDataSource {
  NSArray* _gadgets;
}
@property(nonatomic, copy, setter=_setGadgets:) NSArray* gadgets;
@end

/// Shows gadgets under one another, each under its heading: those that its data source has when it appears.
/// Those of them that are controllers are its children.
@interface PXGadgetViewController : UICollectionViewController {
  PXGadgetDataSource* _dataSource;
  NSArray* _gadgets;
}
/// What the data source is to have, as the library is now.
- (NSArray*)_currentGadgets;
/// Raises for no index path.
- (id)_gadgetAtIndexPath:(NSIndexPath*)path;
@end

/// Is a gadget, and shows gadgets side by side.
@interface PXHorizontalCollectionGadget : PXGadgetViewController <PXGadget>
@end
