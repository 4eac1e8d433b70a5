#pragma once

#import <Foundation/Foundation.h>

/// Messages between processes, by the name of a centre that one of them serves.
@interface CPDistributedMessagingCenter : NSObject {
 @public
  struct CenterState* state_;
}
/// One a name and process.
+ (CPDistributedMessagingCenter*)centerNamed:(NSString*)name;
/// Main thread only; handlers are called on its run loop.
- (void)runServerOnCurrentThread;
/// `selector` takes the message's name and its dictionary (nil when sent without one). The target is not
/// retained.
- (void)registerForMessageName:(NSString*)message target:(id)target selector:(SEL)selector;
/// From any thread. NO when no server took it, and when the dictionary is no property list: the message is
/// lost.
- (BOOL)sendMessageName:(NSString*)message userInfo:(NSDictionary*)userInfo;
- (BOOL)doesServerExist;
@end

/// Lets sandboxed processes find the centre: on the server before it runs, and on each client.
extern "C" void rocketbootstrap_distributedmessagingcenter_apply(CPDistributedMessagingCenter* center);
