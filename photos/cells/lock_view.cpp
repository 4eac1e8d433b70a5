#include "photos/cells/lock_view.hpp"

#include "host/class_pair.hpp"
#include "host/hook.hpp"

namespace velvault12 {

namespace {

UIView photoView(VVLockView view) { return UIView(view.variable<"_photoView">().get()); }

void setPhotoView(VVLockView view, UIView photos) {
  // The former one is let go of when the new one is there.
  const Ref<UIView> former = Ref<UIView>::adopt(photoView(view));
  photos.send<"retain", Object()>();
  view.setVariable<"_photoView">(photos);
}

void deallocate(VVLockView view, Replaced<void()> super) {
  setPhotoView(view, UIView());
  super();
}

void defineClass() {
  if (VVLockView::hostClass() != nullptr) return;
  const Class made = ClassPair(UIImageView::hostClass(), "VVLockView")
                         .variable("_photoView")
                         .method<photoView>(selector<"photoView">(), "@@:")
                         .method<setPhotoView>(selector<"setPhotoView:">(), "v@:@")
                         .registered();
  // As a hook of its own, which calls what it inherits.
  const HookRow row = replace<deallocate>("VVLockView", "dealloc", "v@:");
  if (made != nullptr) installHooks({&row, 1});
}

}  // namespace

Ref<VVLockView> VVLockView::make() {
  defineClass();
  return makeObject<VVLockView>();
}

}  // namespace velvault12
