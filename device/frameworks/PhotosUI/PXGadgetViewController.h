#pragma once

#import "device/frameworks/UIKit/UIKit.h"

/// A part of a screen that is made of parts.
@protocol PXGadget <NSObject>
- (UIView*)contentView;
- (CGSize)sizeThatFits:(CGSize)size;
@optional
/// A heading, and a button beside it.
- (NSString*)localizedTitle;
- (NSString*)accessoryButtonTitle;
- (void)userDidSelectAccessoryButton:(id)sender;
@end

/// Shows gadgets under one another, each under its heading.
@interface PXGadgetViewController : UICollectionViewController {
  NSArray* _gadgets;
}
@property(nonatomic, copy, setter=_setGadgets:) NSArray* _gadgets;
/// Raises for no index path.
- (id)_gadgetAtIndexPath:(NSIndexPath*)path;
@end

/// Is a gadget, and shows gadgets of its layout's item size side by side.
@interface PXHorizontalCollectionGadget : PXGadgetViewController <PXGadget>
/// The gadgets as the library makes them now.
- (NSArray*)_currentGadgets;
@end
