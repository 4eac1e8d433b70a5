#include "benchmarks/report.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

namespace velvault12::benchmarks {

namespace {

constexpr int kVersions = 4;

/// A case with the seconds of its versions.
struct Row {
  std::string name;
  std::array<std::optional<double>, kVersions> seconds;

  std::optional<double> of(Version version) const { return seconds[static_cast<std::size_t>(version)]; }
};

std::vector<Row> rowsOf(const Figures& figures) {
  std::vector<Row> rows;
  for (const Figure& figure : figures) {
    const auto known = std::ranges::find(rows, figure.name, &Row::name);
    Row& row = known == rows.end() ? rows.emplace_back(Row{figure.name, {}}) : *known;
    row.seconds[static_cast<std::size_t>(figure.version)] = figure.seconds;
  }
  return rows;
}

/// What a case should take at the most. The first goal whose prefix a case's name has is the case's.
struct Goal {
  enum class Kind { none, timesFloor, secondsOverHost, secondsOverFloor };
  std::string_view prefix;
  Kind kind;
  double limit;
  const char* text;
};

constexpr Goal kGoals[] = {
    {"collections", Goal::Kind::timesFloor, 1.10, "1.10 × floor"},
    {"assets", Goal::Kind::timesFloor, 1.10, "1.10 × floor"},
    {"key assets", Goal::Kind::timesFloor, 1.10, "1.10 × floor"},
    {"estimatedAssetCount", Goal::Kind::timesFloor, 1.10, "1.10 × floor"},
    {"tile", Goal::Kind::timesFloor, 1.10, "1.10 × floor"},
    {"pass-through", Goal::Kind::secondsOverHost, 3e-9, "host + 3 ns"},
    {"load", Goal::Kind::secondsOverFloor, 1e-3, "floor + 1 ms"},
    {"", Goal::Kind::none, 0, ""},
};

constexpr double kGrowthGoal = 1.05;
constexpr double kStraightforwardGoal = 10;

template <class... Values>
std::string text(const char* format, Values... values) {
  std::array<char, 200> buffer{};
  std::snprintf(buffer.data(), buffer.size(), format, values...);
  return buffer.data();
}

std::string timeText(std::optional<double> seconds) {
  if (!seconds) return "";
  if (*seconds >= 1) return text("%.3g s", *seconds);
  if (*seconds >= 1e-3) return text("%.3g ms", *seconds * 1e3);
  if (*seconds >= 1e-6) return text("%.3g µs", *seconds * 1e6);
  return text("%.1f ns", *seconds * 1e9);
}

std::string line(std::initializer_list<std::string> cells) {
  std::string all = "|";
  for (const std::string& cell : cells) all += " " + cell + " |";
  return all + "\n";
}

std::string verdict(bool isMet) { return isMet ? "met" : "**missed**"; }

std::string rowText(const Row& row) {
  const Goal& goal =
      *std::ranges::find_if(kGoals, [&](const Goal& each) { return row.name.starts_with(each.prefix); });
  const auto host = row.of(Version::host);
  const auto floor = row.of(Version::floor);
  const auto library = row.of(Version::library);
  std::string ratio;
  std::string reached;
  if (floor && library) ratio = text("%.2f", *library / *floor);
  if (goal.kind == Goal::Kind::timesFloor && floor && library)
    reached = verdict(*library <= goal.limit * *floor);
  if (goal.kind == Goal::Kind::secondsOverFloor && floor && library)
    reached = verdict(*library - *floor <= goal.limit);
  if (goal.kind == Goal::Kind::secondsOverHost && host && library) {
    ratio = text("host %+.1f ns", (*library - *host) * 1e9);
    reached = verdict(*library - *host <= goal.limit);
  }
  return line({row.name, timeText(host), timeText(floor), timeText(library),
               timeText(row.of(Version::straightforward)), ratio, goal.text, reached});
}

/// `collections` with about as many locked albums, by the number of albums.
struct Growth {
  struct Point {
    int albums;
    int locked;
    Row row;
  };
  std::vector<Point> points;

  int mostLocked() const { return points.back().locked; }
};

/// One for each number of locked albums; the smallest libraries have fewer than the greatest such number.
std::vector<Growth> growths(const std::vector<Row>& rows) {
  std::vector<Growth> all;
  std::size_t index = 0;
  int before = 0;
  for (const Row& row : rows) {
    Growth::Point point{0, 0, row};
    if (std::sscanf(row.name.c_str(), "collections: %d albums, %d locked", &point.albums, &point.locked) != 2)
      continue;
    index = point.albums == before ? index + 1 : 0;
    before = point.albums;
    if (index == all.size()) all.emplace_back();
    all[index].points.push_back(std::move(point));
  }
  return all;
}

std::string growthText(const Growth& growth) {
  std::string lines;
  const std::string locked = std::to_string(growth.mostLocked()) + " locked";
  // A library whose albums are all locked has nothing left to be fetched, so that no other grows from it.
  const auto first = std::ranges::find_if(
      growth.points, [](const auto& point) { return point.albums >= 100 && point.locked < point.albums; });
  if (first != growth.points.end() && first->albums < growth.points.back().albums) {
    const auto& last = growth.points.back();
    const auto few = first->row.of(Version::library);
    const auto many = last.row.of(Version::library);
    if (few && many) {
      const double exponent =
          std::log(*many / *few) / std::log(static_cast<double>(last.albums) / first->albums);
      lines +=
          line({text("exponent of the library's growth from %d to %d albums, ", first->albums, last.albums) +
                    locked,
                text("%.2f", exponent), text("at most %.2f", kGrowthGoal), verdict(exponent <= kGrowthGoal)});
    }
  }
  for (const auto& [albums, lockedHere, row] : growth.points) {
    const auto straightforward = row.of(Version::straightforward);
    const auto library = row.of(Version::library);
    if (albums != 1'000 || !straightforward || !library) continue;
    const double times = *straightforward / *library;
    lines += line({"straightforward / library, 1000 albums, " + locked, text("%.1f", times),
                   text("at least %.0f", kStraightforwardGoal), verdict(times >= kStraightforwardGoal)});
  }
  return lines;
}

// The plot, in its own units.
constexpr double kWidth = 720;
constexpr double kHeight = 420;
constexpr double kMargin = 64;
constexpr double kNamesWidth = 110;
constexpr double kFewest = 1;     // the power of ten at the left edge: 10 albums
constexpr double kMost = 4;       // at the right one
constexpr double kShortest = -5;  // at the bottom: 10 µs
constexpr double kLongest = 2;    // at the top
constexpr const char* kColors[] = {"#8a8f98", "#3b7dd8", "#1b9e57", "#d1495b"};

double x(double albums) {
  return kMargin + (std::log10(albums) - kFewest) / (kMost - kFewest) * (kWidth - kMargin - kNamesWidth);
}
double y(double seconds) {
  return kHeight - kMargin -
         (std::log10(seconds) - kShortest) / (kLongest - kShortest) * (kHeight - 2 * kMargin);
}

std::string svgText(double atX, double atY, const char* anchor, std::string_view words) {
  return text("<text x=\"%.1f\" y=\"%.1f\" text-anchor=\"%s\">", atX, atY, anchor) + std::string(words) +
         "</text>\n";
}

std::string grid() {
  std::string svg;
  constexpr const char* kLine =
      "<line x1=\"%.1f\" y1=\"%.1f\" x2=\"%.1f\" y2=\"%.1f\" stroke=\"#e3e5e8\"/>\n";
  for (double power = kFewest; power <= kMost; ++power) {
    const double at = x(std::pow(10, power));
    svg += text(kLine, at, kMargin, at, kHeight - kMargin);
    svg += svgText(at, kHeight - kMargin + 18, "middle", text("%.0f", std::pow(10, power)));
  }
  for (double power = kShortest; power <= kLongest; ++power) {
    const double at = y(std::pow(10, power));
    svg += text(kLine, kMargin, at, kWidth - kNamesWidth, at);
    svg += svgText(kMargin - 6, at + 4, "end", timeText(std::pow(10, power)));
  }
  return svg;
}

std::string curve(const Growth& growth, Version version) {
  const auto index = static_cast<std::size_t>(version);
  std::string points;
  std::string dots;
  double last = 0;
  for (const auto& [albums, locked, row] : growth.points) {
    const std::optional<double> seconds = row.of(version);
    if (!seconds) continue;
    last = y(*seconds);
    points += text("%.1f,%.1f ", x(albums), last);
    dots += text("<circle cx=\"%.1f\" cy=\"%.1f\" r=\"3\" fill=\"%s\"/>\n", x(albums), last, kColors[index]);
  }
  if (points.empty()) return "";
  // The library lies on the floor: its name goes above the line's end, the floor's below.
  const double shift = version == Version::library ? -3 : version == Version::floor ? 12 : 4;
  return text("<polyline points=\"%s\" fill=\"none\" stroke=\"%s\" stroke-width=\"2\"/>\n", points.c_str(),
              kColors[index]) +
         dots + text("<g fill=\"%s\">", kColors[index]) +
         svgText(kWidth - kNamesWidth + 8, last + shift, "start", kVersionNames[index]) + "</g>\n";
}

}  // namespace

std::string report(const Figures& figures) {
  const std::vector<Row> rows = rowsOf(figures);
  std::string all =
      line({"case", "host", "floor", "library", "straightforward", "library / floor", "at most", ""}) +
      "|---|---|---|---|---|---|---|---|\n";
  for (const Row& row : rows) all += rowText(row);
  std::string growth;
  for (const Growth& each : growths(rows)) growth += growthText(each);
  if (!growth.empty()) all += "\n| of `collections` | measured | goal | |\n|---|---|---|---|\n" + growth;
  return all;
}

std::string growthPlot(const Figures& figures) {
  std::string svg = text(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %.0f %.0f\" "
      "font-family=\"sans-serif\" font-size=\"12\">\n"
      "<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n",
      kWidth, kHeight);
  svg +=
      svgText(kWidth / 2, 28, "middle",
              "One call of collections, by the number of albums in the library, at most 100 of them locked");
  svg += svgText(kWidth / 2, kHeight - 16, "middle", "albums");
  svg += grid();
  const std::vector<Growth> all = growths(rowsOf(figures));
  if (!all.empty()) {
    for (const Version version : {Version::host, Version::floor, Version::straightforward, Version::library})
      svg += curve(all.back(), version);
  }
  return svg + "</svg>\n";
}

}  // namespace velvault12::benchmarks
