// The committed images: as their sources draw them, and legible wherever they are shown.

#include <gtest/gtest.h>
#include <png.h>
#include <stdio.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using Colour = std::array<int, 3>;  // red, green and blue from 0 to 255
constexpr Colour kWhite{255, 255, 255}, kBlack{0, 0, 0};

using Stream = std::unique_ptr<FILE, int (*)(FILE*)>;

/// What a PNG shows; of no size if the stream holds none.
struct Picture {
  explicit Picture(const Stream& stream) {
    std::string file;
    for (int byte = 0; stream && (byte = fgetc(stream.get())) != EOF;) file += static_cast<char>(byte);
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    const std::unique_ptr<png_image, void (*)(png_image*)> freed(&png, &png_image_free);
    if (!png_image_begin_read_from_memory(&png, file.data(), file.size())) return;
    png.format = PNG_FORMAT_RGBA;
    bytes.resize(PNG_IMAGE_SIZE(png));
    if (!png_image_finish_read(&png, nullptr, bytes.data(), 0, nullptr)) return;
    width = png.width;
    height = png.height;
  }
  size_t pixels() const { return width * height; }
  int alpha(size_t pixel) const { return bytes[4 * pixel + 3]; }
  Colour over(const Colour& backdrop, size_t pixel) const {
    Colour mixed{};
    for (size_t i = 0; i < mixed.size(); ++i)
      mixed[i] = (bytes[4 * pixel + i] * alpha(pixel) + backdrop[i] * (255 - alpha(pixel)) + 127) / 255;
    return mixed;
  }
  /// How many of the drawn pixels inside the ring meet a condition, from 0 to 1. A pixel is drawn if it shows
  /// more of the picture than of the backdrop.
  double shareInsideRing(const Colour& backdrop, const std::function<bool(Colour)>& condition) const {
    double drawn = 0, met = 0;
    for (size_t pixel = 0; pixel < pixels(); ++pixel) {
      const size_t x = pixel % width, y = pixel / width;
      if (std::min({x, width - 1 - x, y, height - 1 - y}) < width / 4 || alpha(pixel) < 128) continue;
      ++drawn;
      met += condition(over(backdrop, pixel)) ? 1 : 0;
    }
    return drawn == 0 ? 0 : met / drawn;
  }

  size_t width = 0, height = 0;
  std::vector<png_byte> bytes;  // red, green, blue and alpha of each pixel
};

struct Image {
  std::string name;
  unsigned points, scale;

  std::string source() const { return name + ".svg"; }
  std::string file() const { return name + (scale == 1 ? "" : "@" + std::to_string(scale) + "x") + ".png"; }
  Picture committed() const {
    return Picture(Stream(fopen((VELVAULT12_RESOURCES "/" + file()).c_str(), "rb"), &fclose));
  }
  Picture rendered() const {
    const std::string command = "'" VELVAULT12_RSVG_CONVERT "' --zoom " + std::to_string(scale) +
                                " '" VELVAULT12_RESOURCES "/" + source() + "'";
    return Picture(Stream(popen(command.c_str(), "r"), &pclose));
  }
};

std::vector<Image> images() {
  std::vector<Image> all;
  for (const unsigned scale : {1U, 2U, 3U}) {
    all.insert(all.end(), {{"album", 28, scale}, {"move", 22, scale}});
    all.insert(all.end(), {{"greenlock", 22, scale}, {"whitelock", 50, scale}});
  }
  return all;
}

TEST(Images, AreThereInEachSize) {
  std::set<std::string> expected, found;
  for (const Image& image : images()) {
    expected.insert({image.source(), image.file()});
    const Picture picture = image.committed();
    EXPECT_EQ(picture.width, image.points * image.scale) << image.file();
    EXPECT_EQ(picture.height, image.points * image.scale) << image.file();
  }
  for (const auto& entry : std::filesystem::directory_iterator(VELVAULT12_RESOURCES))
    found.insert(entry.path().filename().string());
  EXPECT_EQ(found, expected);
}

TEST(Images, AreRenderedFromTheirSources) {
  constexpr int kTolerance = 3;  // librsvg 2.54 and 2.63 differ by 1
  for (const Image& image : images()) {
    const Picture picture = image.committed(), fresh = image.rendered();
    ASSERT_EQ(picture.pixels(), fresh.pixels()) << image.file() << " has another size: run ./dev images";
    int difference = 0;
    for (size_t pixel = 0; pixel < fresh.pixels(); ++pixel) {
      for (const Colour& photo : {kWhite, kBlack}) {
        const Colour is = picture.over(photo, pixel), shouldBe = fresh.over(photo, pixel);
        for (size_t i = 0; i < is.size(); ++i)
          difference = std::max(difference, std::abs(is[i] - shouldBe[i]));
      }
    }
    EXPECT_LE(difference, kTolerance) << image.file() << " is stale: run ./dev images";
  }
}

// A bright photo shines through a dark ground, a dark one through a bright mark. Each as far from grey as
// here, one of the two has the contrast of 3 to any photo that WCAG asks of graphics. Of the drawn pixels of
// the soft-edged 1x files, a quarter is so.
TEST(Images, AreABrightMarkOnADarkGroundOverAnyPhoto) {
  constexpr double kShare = 0.2;
  const auto brightness = [](Colour colour) { return (2 * colour[0] + 7 * colour[1] + colour[2]) / 10; };
  const auto isGround = [&](Colour colour) { return brightness(colour) <= 110; };
  const auto isMark = [&](Colour colour) { return brightness(colour) >= 231; };
  for (const Image& image : images()) {
    const Picture picture = image.committed();
    ASSERT_GT(picture.pixels(), 0U) << image.file();
    EXPECT_EQ(picture.alpha(0), 0) << image.file() << " has a background";
    EXPECT_GE(picture.shareInsideRing(kWhite, isGround), kShare) << image.file();
    EXPECT_GE(picture.shareInsideRing(kBlack, isMark), kShare) << image.file();
  }
}

}  // namespace
