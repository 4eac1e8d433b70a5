// The committed images: as their sources draw them, and legible wherever they are shown.

#include <cairo.h>
#include <gtest/gtest.h>
#include <librsvg/rsvg.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

const std::string kFolder = VELVAULT12_RESOURCES "/";

/// Blue, green, red and alpha of each pixel, row by row, the colours multiplied with the alpha. None for a
/// file that could not be read.
std::vector<int> pixelsOf(cairo_surface_t* image) {
  const unsigned char* bytes = cairo_image_surface_get_data(image);
  return {bytes, bytes + 1L * cairo_image_surface_get_stride(image) * cairo_image_surface_get_height(image)};
}

std::vector<int> rendered(const std::string& svg, int size) {
  const Surface image(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, size, size), &cairo_surface_destroy);
  const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> context(cairo_create(image.get()), &cairo_destroy);
  const std::unique_ptr<RsvgHandle, decltype(&g_object_unref)> drawing(
      rsvg_handle_new_from_file((kFolder + svg).c_str(), nullptr), &g_object_unref);
  const RsvgRectangle whole{.x = 0, .y = 0, .width = 1.0 * size, .height = 1.0 * size};
  EXPECT_TRUE(drawing && rsvg_handle_render_document(drawing.get(), context.get(), &whole, nullptr)) << svg;
  return pixelsOf(image.get());
}

/// How many of the drawn pixels inside the ring are a dark ground over a white photo, or a bright mark over a
/// black one, whichever are fewer; from 0 to 1. Each as far from grey as here, one of the two has the
/// contrast of 3 to any photo that WCAG asks of graphics.
double legibleShare(const std::vector<int>& pixels, int size) {
  double drawn = 0, ground = 0, mark = 0;
  for (int x = size / 4; x < size - size / 4; ++x) {
    for (int y = size / 4; y < size - size / 4; ++y) {
      const int* pixel = &pixels[4UL * (y * size + x)];
      const int overBlack = (2 * pixel[2] + 7 * pixel[1] + pixel[0]) / 10;
      const int overWhite = overBlack + 255 - pixel[3];
      if (pixel[3] < 128) continue;
      drawn += 1;
      ground += overWhite <= 110 ? 1 : 0;
      mark += overBlack >= 231 ? 1 : 0;
    }
  }
  return std::min(ground, mark) / drawn;
}

TEST(Images, AreAsTheirSourcesDrawThemAndLegible) {
  std::set<std::string> expected, found;
  for (const auto& [name, points] :
       {std::pair("album", 28), {"move", 22}, {"greenlock", 22}, {"whitelock", 50}}) {
    for (const int scale : {1, 2, 3}) {
      const std::string svg = std::string(name) + ".svg";
      const std::string png = name + (scale == 1 ? "" : "@" + std::to_string(scale) + "x") + ".png";
      expected.insert({svg, png});
      const int size = points * scale;
      const Surface committed(cairo_image_surface_create_from_png((kFolder + png).c_str()),
                              &cairo_surface_destroy);
      const std::vector<int> pixels = pixelsOf(committed.get());
      // librsvg 2.54 and 2.63 differ by 1.
      const auto isNear = [](int one, int other) { return std::abs(one - other) <= 3; };
      ASSERT_TRUE(std::ranges::equal(pixels, rendered(svg, size), isNear)) << png << ": run ./dev images";
      EXPECT_EQ(pixels[3], 0) << png << " has a background";
      // A quarter of the soft-edged 1x files.
      EXPECT_GE(legibleShare(pixels, size), 0.2) << png;
    }
  }
  for (const auto& file : std::filesystem::directory_iterator(kFolder)) found.insert(file.path().filename());
  EXPECT_EQ(found, expected);
}

}  // namespace
