#pragma once

#include "benchmarks/phone.hpp"
#include "device/apps/app.hpp"
#include "device/system/loader.hpp"
#include "device/system/process.hpp"
#include "device/user/user.hpp"
#include "host/photos_ui.hpp"

namespace velvault12::benchmarks {

/// This process as the Photos app, which shows the list of the user's albums: six of them, the last three
/// locked.
class PhotosApp {
 public:
  static constexpr int kAlbums = 6;
  /// Whether the app starts with the library in it. One that comes later finds what is on screen as the host
  /// alone makes it.
  enum class Library { none, loaded };

  static void fill(Phone& phone) {
    std::vector<std::string> titles;
    for (int i = 0; i < kAlbums; ++i) {
      titles.push_back("Album " + std::to_string(i));
      phone.addAlbum(titles.back(), 3);
    }
    phone.lock({titles.begin() + kAlbums / 2, titles.end()});
  }

  explicit PhotosApp(const Phone& phone, Library library = Library::none) {
    device::become({phone.device.folder(), std::string(device::kPhotos)});
    if (library == Library::loaded) device::loadInjectedLibraries();
    device::startApp(device::kPhotos);
    device::User::here().tap("See All");
  }

  static UINavigationController navigation() {
    return PhotosApplication(UIApplication::sharedApplication().get())
        .tabbedLibraryViewController()
        .selectedNavigationController();
  }
  /// Nil while an album is open.
  static PUAlbumListViewController albumList() {
    return navigation().send<"topViewController", UIViewController()>().as<PUAlbumListViewController>();
  }
  static NSIndexPath pathTo(NSInteger item) {
    return sendToClass<"indexPathForItem:inSection:", NSIndexPath(NSInteger, NSInteger)>(
        NSIndexPath::hostClass(), item, 0);
  }
  /// Where the first of the user's albums is: the library puts the camera roll in front of them.
  static NSInteger firstAlbum() {
    return albumList().collectionAtIndexPath(pathTo(0)).title().isEqualToString(NSString::from("Album 0"))
               ? 0
               : 1;
  }
  static PUAlbumListCellContentView tile(NSInteger item) { return albumList().tileAtIndexPath(pathTo(item)); }

 private:
  AutoreleasePool pool_;
};

/// The same with a phone of its own.
class PhotosPhone : public Phone {
 public:
  PhotosPhone() { PhotosApp::fill(*this); }
};

}  // namespace velvault12::benchmarks
