#include "benchmarks/floor.hpp"
#include "benchmarks/photos/photos_app.hpp"
#include "benchmarks/photos/photos_benchmark.hpp"
#include "device/system/loader.hpp"
#include "host/hook.hpp"

namespace velvault12::benchmarks {

namespace {

void floorOfSelection(PUAlbumListViewController list, Replaced<void(NSIndexPath)> host, NSIndexPath path) {
  // Read when the list appeared, not by each selection.
  static const Ref<NSSet> locked = readLockedTitles();
  const auto album = list.send<"collectionAtIndexPath:", PHCollection(NSIndexPath)>(path);
  if (!locked->containsObject(album.localizedTitle())) host(path);
}

}  // namespace

Figures measureAlbumSelection() {
  const PhotosPhone phone;
  const PhotosApp app(phone);
  Versions versions;
  versions.define(Version::floor, [] {
    constexpr HookRow kRow =
        replace<floorOfSelection>("PUAlbumListViewController", "didSelectItemAtIndexPath:", "v@:@");
    installHooks({&kRow, 1});
  });
  versions.define(Version::library, device::loadInjectedLibraries);

  Bench bench(versions);
  const PUAlbumListViewController list = PhotosApp::albumList();
  bench.addTimed("selection: shown album", {Version::host, Version::floor, Version::library}, 50,
                 [list](Version) {
                   const AutoreleasePool pool;
                   // What the way back has left to be laid out is not the selection's: twice, since a tile
                   // that is told its album's true count asks for another pass.
                   const UIView window = UIApplication::sharedApplication().keyWindow();
                   for (int i = 0; i < 2; ++i) window.send<"layoutIfNeeded", void()>();
                   const NSIndexPath path = PhotosApp::pathTo(PhotosApp::firstAlbum());
                   const double seconds = secondsOf([list, path] { list.select(path); });
                   PhotosApp::navigation().send<"popViewControllerAnimated:", Object(bool)>(false);
                   return seconds;
                 });
  return bench.figures();
}

}  // namespace velvault12::benchmarks
