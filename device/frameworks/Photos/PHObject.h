#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>

/// Two of them are equal when they stand for the same thing in the library.
@interface PHObject : NSObject {
  NSString* _localIdentifier;
}
@property(nonatomic, readonly) NSString* localIdentifier;
- (id)_initWithLocalIdentifier:(NSString*)identifier;
@end

@interface PHFetchOptions : NSObject <NSCopying> {
  NSPredicate* _predicate;
  NSArray* _sortDescriptors;
  BOOL _includeHiddenAssets;
}
@property(nonatomic, retain) NSPredicate* predicate;
@property(nonatomic, copy) NSArray* sortDescriptors;
@property(nonatomic) BOOL includeHiddenAssets;
/// Those of the objects that the options ask for, in their order.
- (NSArray*)_select:(NSArray*)objects;
@end

/// What the library held when it was asked.
@interface PHFetchResult : NSObject <NSFastEnumeration> {
  NSArray* _objects;
}
@property(nonatomic, readonly) NSUInteger count;
@property(nonatomic, readonly) id firstObject;
@property(nonatomic, readonly) id lastObject;
@property(nonatomic, readonly) NSArray* fetchedObjects;
- (id)objectAtIndex:(NSUInteger)index;
/// The options may be nil.
+ (PHFetchResult*)_resultOf:(NSArray*)objects options:(PHFetchOptions*)options;
@end
