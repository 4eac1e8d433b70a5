#pragma once

#import "device/frameworks/Photos/PHAsset.h"
#import "device/frameworks/Photos/PHCollection.h"
#import "device/frameworks/Photos/PHObject.h"
