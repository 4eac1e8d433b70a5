#include <algorithm>
#include <stdexcept>
#include <string>

#include "device/apps/app.hpp"
#import "device/frameworks/UIKit/UIApplication.h"
#include "device/system/process.hpp"

namespace device {
namespace {

struct InstalledApp {
  std::string_view bundleIdentifier;
  const char* applicationClass;
};

constexpr InstalledApp kInstalledApps[] = {
    {kSpringBoard, "SpringBoard"},    {kPhotos, "PhotosApplication"},    {kCamera, "CameraApplication"},
    {kGallery, "GalleryApplication"}, {kShopDemo, "GalleryApplication"},
};

}  // namespace

void startApp(std::string_view bundleIdentifier) {
  const auto app = std::ranges::find(kInstalledApps, bundleIdentifier, &InstalledApp::bundleIdentifier);
  if (app == std::end(kInstalledApps)) {
    throw std::runtime_error("no app " + std::string(bundleIdentifier) + " on this phone");
  }
  const Class applicationClass = NSClassFromString([NSString stringWithUTF8String:app->applicationClass]);
  UIApplication* application = [[[applicationClass alloc] init] autorelease];
  [application applicationDidFinishLaunching:application];
  [application _layoutWindows];
}

}  // namespace device
