#include "photos/list/people_and_places.hpp"

#include "startup/settings.hpp"

namespace velvault12 {

namespace {

bool shows(bool Settings::*choice, const Replaced<bool()>& host) {
  const auto chosen = settings();
  return (!chosen->enabled || (*chosen).*choice) && host();
}

}  // namespace

bool stripShowsPeople(PUHorizontalAlbumListGadget, Replaced<bool()> host) {
  return shows(&Settings::showPeople, host);
}

bool stripShowsPlaces(PUHorizontalAlbumListGadget, Replaced<bool()> host) {
  return shows(&Settings::showPlaces, host);
}

bool listShowsPeople(PUAlbumListViewController, Replaced<bool()> host) {
  return shows(&Settings::showPeople, host);
}

bool listShowsPlaces(PUAlbumListViewController, Replaced<bool()> host) {
  return shows(&Settings::showPlaces, host);
}

}  // namespace velvault12
