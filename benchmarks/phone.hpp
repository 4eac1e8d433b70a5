#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "device/device.hpp"
#include "tests/temporary_folder.hpp"

namespace velvault12::benchmarks {

/// A phone of its own with the library installed, which goes with it. The process may become one of its apps.
class Phone {
 public:
  Phone() { device.install(VELVAULT12_LIBRARY, VELVAULT12_FILTER, VELVAULT12_IMAGES); }

  /// The list of locked albums, as SpringBoard writes it.
  void lock(const std::vector<std::string>& titles) const {
    const std::filesystem::path file = device.onDisk("/var/mobile/Library/velvault/lockedAlbums.plist");
    std::filesystem::create_directories(file.parent_path());
    std::ofstream list(file);
    list << R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<array>
)";
    for (const std::string& title : titles) list << "\t<string>" << title << "</string>\n";
    list << "</array>\n</plist>\n";
  }
  /// An album of that many photos, every fourth of them hidden.
  void addAlbum(std::string_view title, int photos, std::int64_t folder = 0) {
    const std::int64_t album = library.addAlbum(title, folder);
    for (int i = 0; i < photos; ++i) library.addToAlbum(library.addAsset({.isHidden = i % 4 == 3}), album);
  }

 private:
  TemporaryFolder folder_;

 public:
  const device::Device device{folder_.path() / "phone"};
  device::PhotoDatabase library = device.photoLibrary();
};

}  // namespace velvault12::benchmarks
