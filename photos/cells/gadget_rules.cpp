#include "photos/cells/gadget_rules.hpp"

namespace velvault12 {

namespace {

constexpr std::uint64_t kSharedAlbums = 2;
constexpr std::uint64_t kPeopleAndPlaces = 3;
constexpr std::uint64_t kListOfAlbums = 10;

}  // namespace

bool GadgetWalk::showsStrip(std::uint64_t albumListType) const {
  if (albumListType == kPeopleAndPlaces) return settings_.showPeopleAnd;
  if (albumListType == kSharedAlbums) return settings_.showSharedAlbums;
  return true;
}

bool GadgetWalk::showsList() {
  // The lists are not told apart: the first one is taken for that of the media types, and only once it is
  // gone are those after it the other albums.
  if (firstListIsGone_) return settings_.showOtherAlbums;
  firstListIsGone_ = !settings_.showMediaTypes;
  return settings_.showMediaTypes;
}

bool GadgetWalk::shows(const Gadget& next) {
  const bool isShownStrip = !next.albumListType || showsStrip(*next.albumListType);
  const bool isShownList = next.type != kListOfAlbums || showsList();
  return isShownStrip && isShownList;
}

}  // namespace velvault12
