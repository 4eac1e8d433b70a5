#pragma once

#import "device/frameworks/UIKit/UIAlertController.h"
#import "device/frameworks/UIKit/UIApplication.h"
#import "device/frameworks/UIKit/UIBars.h"
#import "device/frameworks/UIKit/UICollectionViewController.h"
#import "device/frameworks/UIKit/UIControls.h"
#import "device/frameworks/UIKit/UIDevice.h"
#import "device/frameworks/UIKit/UIGestureRecognizer.h"
#import "device/frameworks/UIKit/UIImage.h"
#import "device/frameworks/UIKit/UINavigationController.h"
#import "device/frameworks/UIKit/UITabBarController.h"
#import "device/frameworks/UIKit/UIVisualEffect.h"
