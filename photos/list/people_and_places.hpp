#pragma once

#include "host/hook.hpp"
#include "host/photos_ui.hpp"

namespace velvault12 {

// `showPeople` and `showPlaces` of the strip and of the list: no, when that is switched off.

bool stripShowsPeople(PUHorizontalAlbumListGadget strip, Replaced<bool()> host);
bool stripShowsPlaces(PUHorizontalAlbumListGadget strip, Replaced<bool()> host);
bool listShowsPeople(PUAlbumListViewController list, Replaced<bool()> host);
bool listShowsPlaces(PUAlbumListViewController list, Replaced<bool()> host);

}  // namespace velvault12
