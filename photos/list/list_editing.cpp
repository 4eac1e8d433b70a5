#include "photos/list/list_editing.hpp"

#include "host/process_wide.hpp"
#include "photos/list/controller_registry.hpp"
#include "startup/settings.hpp"
#include "startup/shared_files.hpp"

namespace velvault12 {

namespace {

// The buttons are found again by these, which no host gives to its own.
constexpr NSInteger kMoveBarButtonTag = 1200215;
constexpr NSInteger kCameraButtonTag = 1200216;

struct ListEditing {
  bool isOn = false;
};

Ref<UIBarButtonItem> moveButton(UINavigationController navigation) {
  const auto image = UIImage::contentsOfFile(kMoveImage);
  return UIBarButtonItem::withImage(image->alwaysOriginal(), navigation, selector<"syncAlbums">());
}

Ref<UIBarButtonItem> cameraButton(PUAlbumListViewController list) {
  return UIBarButtonItem::camera(list, selector<"handleCameraTap:">());
}

/// Sees to it that the item has the button of that tag, once, or has it not.
template <class MakeButton>
void setButton(UINavigationItem item, NSInteger tag, bool isWanted, MakeButton makeButton) {
  const auto items = makeObject<NSMutableArray>();
  bool isThere = false;
  for (const Object other : item.rightBarButtonItems()) {
    const bool isIt = UIBarButtonItem(other.get()).tag() == tag;
    isThere = isThere || isIt;
    if (!isIt || isWanted) items->addObject(other);
  }
  if (isThere == isWanted) return;
  if (isWanted) {
    const Ref<UIBarButtonItem> button = makeButton();
    button->setTag(tag);
    items->addObject(button.get());
  }
  item.setRightBarButtonItems(items.get());
}

}  // namespace

bool isListEditing() { return processWide<ListEditing>().isOn; }

void listSetEditing(PUAlbumListViewController list, Replaced<void(bool, bool)> host, bool editing,
                    bool animated) {
  processWide<ListEditing>().isOn = editing;
  host(editing, animated);
  updateBarButtons(list);
}

void updateBarButtons(PUAlbumListViewController list) {
  const UINavigationItem item = list.navigationItem();
  const UINavigationController navigation = list.navigationController();
  const bool isOn = isEnabled();
  const bool movesAlbums = isOn && list.isEditing() && navigation.responds<"syncAlbums">();
  const bool returnsPhotos = isOn && list.pickerBannerView() && controllerRegistry().albumView;
  setButton(item, kMoveBarButtonTag, movesAlbums, [&] { return moveButton(navigation); });
  setButton(item, kCameraButtonTag, returnsPhotos, [&] { return cameraButton(list); });
}

}  // namespace velvault12
