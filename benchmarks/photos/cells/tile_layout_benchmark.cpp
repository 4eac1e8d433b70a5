#include <array>

#include "benchmarks/floor.hpp"
#include "benchmarks/photos/photos_app.hpp"
#include "benchmarks/photos/photos_benchmark.hpp"
#include "device/system/loader.hpp"
#include "host/hook.hpp"

namespace velvault12::benchmarks {

namespace {

constexpr NSInteger kOverlay = 200;
constexpr NSInteger kPadlock = 202;
constexpr double kPadlockSize = 50;
constexpr double kFontSize = 14;

/// An overlay like the library's, made once: a padlock over a blur.
void addOverlay(PUAlbumListCellContentView tile) {
  const auto overlay = makeObject<UIView>();
  const auto padlock = makeObject<UIView>();
  overlay->setTag(kOverlay);
  padlock->setTag(kPadlock);
  overlay->addSubview(UIVisualEffectView::make(UIBlurEffect::dark()).get());
  overlay->addSubview(padlock.get());
  tile.addSubview(overlay.get());
}

void layOutOverlay(PUAlbumListCellContentView tile) {
  const CGRect stack = tile.send<"stackView", UIView()>().frame();
  const double side = stack.size.width + 2;
  const auto overlay = tile.subviewWithTag<UIView>(kOverlay);
  const double inset = (side - kPadlockSize) / 2;
  overlay.setFrame({{stack.origin.x - 1, stack.origin.y - 1}, {side + 2, side + 2}});
  overlay.subviewWithTag<UIView>(kPadlock).setFrame({{inset, inset}, {kPadlockSize, kPadlockSize}});
  tile.bringSubviewToFront(overlay);
}

/// Every message that a layout pass must send: a recognizer for the press, the album's true count, one read
/// of the locked titles, the overlay's frames, the two fonts.
void floorOfLayout(PUAlbumListCellContentView tile, Replaced<void()> host) {
  host();
  tile.setClipsToBounds(true);
  const auto title = tile.send<"title", NSString()>();
  const auto press = makeRecognizer<UILongPressGestureRecognizer>(tile.viewControllerForAncestor(),
                                                                  selector<"handleLongPress:">());
  press->setMinimumPressDuration(1);
  if (tile.gestureRecognizers().count() == 0) tile.addGestureRecognizer(press.get());

  const auto subtitle = tile.send<"subtitle", NSString()>();
  const PHAssetCollection album = PHAssetCollection::userAlbums(title).firstObject();
  if (isNumber(subtitle) && album) {
    const NSNumber count = NSNumber::from(PHAsset::fetchAllInAssetCollection(album).count());
    const auto text = count.send<"stringValue", NSString()>();
    if (!subtitle.isEqualToString(text)) tile.send<"setSubtitle:", void(NSString)>(text);
  }

  if (readLockedTitles()->containsObject(title)) layOutOverlay(tile);
  tile.setHidden(false);
  tile.send<"_titleTextField", UITextField()>().setFont(UIFont::systemFontOfSize(kFontSize));
  tile.send<"_subtitleLabel", UILabel()>().setFont(UIFont::systemFontOfSize(kFontSize));
}

}  // namespace

Figures measureTileLayout() {
  const PhotosPhone phone;
  const PhotosApp app(phone);
  // A tile of its own for each version: what one has added to it would be laid out by the others.
  constexpr int kVersions = 3;
  const auto tileOf = [](Version version, bool isLocked) {
    return PhotosApp::tile(static_cast<int>(version) + (isLocked ? kVersions : 0));
  };
  Versions versions;
  versions.define(Version::floor, [] {
    constexpr HookRow kRow = replace<floorOfLayout>("PUAlbumListCellContentView", "layoutSubviews", "v@:");
    installHooks({&kRow, 1});
  });
  versions.define(Version::library, device::loadInjectedLibraries);
  addOverlay(tileOf(Version::floor, true));

  Bench bench(versions);
  for (const bool isLocked : {false, true}) {
    std::array<Ref<PUAlbumListCellContentView>, kVersions> tiles;
    for (const Version version : {Version::host, Version::floor, Version::library})
      tiles[static_cast<std::size_t>(version)] = Ref(tileOf(version, isLocked));
    const auto layOut = [tiles](Version version) {
      tiles[static_cast<std::size_t>(version)]->layoutSubviews();
    };
    bench.add(isLocked ? "tile: locked album" : "tile: shown album",
              {Version::host, Version::floor, Version::library}, layOut);
  }
  return bench.figures();
}

}  // namespace velvault12::benchmarks
