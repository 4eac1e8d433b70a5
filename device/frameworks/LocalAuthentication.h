#pragma once

#import <Foundation/Foundation.h>

enum LAPolicy : NSInteger {
  LAPolicyDeviceOwnerAuthenticationWithBiometrics = 1,
  LAPolicyDeviceOwnerAuthentication = 2,
};

enum LAError : NSInteger {
  LAErrorAuthenticationFailed = -1,
  LAErrorUserCancel = -2,
  LAErrorPasscodeNotSet = -5,
  LAErrorBiometryNotEnrolled = -7,
  LAErrorAppCancel = -9,
};

extern NSString* const LAErrorDomain;

/// Asks the phone's owner for Touch ID or the passcode. A context that is deallocated takes back what it
/// asked.
@interface LAContext : NSObject
- (BOOL)canEvaluatePolicy:(NSInteger)policy error:(NSError**)error;
/// The reply comes on a thread of its own. Raises without a reason or a reply.
- (void)evaluatePolicy:(NSInteger)policy
       localizedReason:(NSString*)reason
                 reply:(void (^)(BOOL success, NSError* error))reply;
@end
