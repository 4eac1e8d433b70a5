#pragma once

#import "device/frameworks/Photos/PHAsset.h"
#import "device/frameworks/Photos/PHChangeRequest.h"
#import "device/frameworks/Photos/PHCollection.h"
#import "device/frameworks/Photos/PHImageManager.h"
#import "device/frameworks/Photos/PHObject.h"
#import "device/frameworks/Photos/PHPhotoLibrary.h"
