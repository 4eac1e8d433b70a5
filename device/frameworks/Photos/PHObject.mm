#import "device/frameworks/Photos/PHObject.h"

@implementation PHObject

@synthesize localIdentifier = _localIdentifier;

- (id)_initWithLocalIdentifier:(NSString*)identifier {
  self = [super init];
  if (self) _localIdentifier = [identifier copy];
  return self;
}

- (void)dealloc {
  [_localIdentifier release];
  [super dealloc];
}

- (BOOL)isEqual:(id)other {
  return [other isKindOfClass:[PHObject class]] && [[other localIdentifier] isEqualToString:_localIdentifier];
}

- (NSUInteger)hash {
  return [_localIdentifier hash];
}

@end

@implementation PHFetchOptions

@synthesize predicate = _predicate;
@synthesize sortDescriptors = _sortDescriptors;
@synthesize includeHiddenAssets = _includeHiddenAssets;

- (void)dealloc {
  [_predicate release];
  [_sortDescriptors release];
  [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
  PHFetchOptions* made = [[[self class] allocWithZone:zone] init];
  [made setPredicate:_predicate];
  [made setSortDescriptors:_sortDescriptors];
  [made setIncludeHiddenAssets:_includeHiddenAssets];
  return made;
}

- (NSArray*)_select:(NSArray*)objects {
  if (_predicate) objects = [objects filteredArrayUsingPredicate:_predicate];
  if ([_sortDescriptors count]) objects = [objects sortedArrayUsingDescriptors:_sortDescriptors];
  return objects;
}

@end

@implementation PHFetchResult

+ (PHFetchResult*)_resultOf:(NSArray*)objects options:(PHFetchOptions*)options {
  PHFetchResult* result = [[[self alloc] init] autorelease];
  result->_objects = [(options ? [options _select:objects] : objects) copy];
  return result;
}

- (void)dealloc {
  [_objects release];
  [super dealloc];
}

- (NSUInteger)count {
  return [_objects count];
}

- (id)firstObject {
  return [_objects firstObject];
}

- (id)lastObject {
  return [_objects lastObject];
}

- (NSArray*)fetchedObjects {
  return [NSArray arrayWithArray:_objects];
}

- (id)objectAtIndex:(NSUInteger)index {
  return [_objects objectAtIndex:index];
}

- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id*)stackBuffer
                                    count:(NSUInteger)length {
  return [_objects countByEnumeratingWithState:state objects:stackBuffer count:length];
}

@end
