#include "device/demo/page.hpp"

#include <fstream>
#include <map>
#include <stdexcept>
#include <string>

#include "device/demo/png.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPictures = "pictures";

constexpr std::string_view kHead = R"(<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>
:root { color-scheme: light dark; --text: #1d1d1f; --dim: #6e6e73; --page: #f5f5f7; --card: #fff; --line: #e3e3e8;
  --blue: #0a66d8; --bad: #c6262e; }
@media (prefers-color-scheme: dark) {
  :root { --text: #f2f2f4; --dim: #a0a0a8; --page: #0e0e11; --card: #1b1b20; --line: #2e2e35; --blue: #5aa9ff;
    --bad: #ff6b6b; }
}
* { box-sizing: border-box; }
body { margin: 0; background: var(--page); color: var(--text);
  font: 17px/1.5 -apple-system, "Segoe UI", Roboto, Helvetica, Arial, sans-serif; }
main { max-width: 960px; margin: 0 auto; padding: 32px 20px 80px; }
h1 { font-size: clamp(30px, 6vw, 48px); line-height: 1.1; letter-spacing: -0.02em; margin: 24px 0 8px; }
h2 { font-size: clamp(22px, 4vw, 30px); line-height: 1.2; letter-spacing: -0.01em; margin: 64px 0 16px; }
.dim { color: var(--dim); }
nav ol { padding-left: 1.4em; }
a { color: var(--blue); text-decoration: none; }
article { display: grid; grid-template-columns: 1fr 240px; gap: 28px; align-items: start; margin: 16px 0;
  padding: 28px; background: var(--card); border: 1px solid var(--line); border-radius: 20px; }
article > div { min-width: 0; }
h3 { font-size: 19px; line-height: 1.35; margin: 0 0 12px; }
.number { color: var(--dim); font-weight: 400; font-size: 14px; margin: 0 0 4px; }
.answer { margin: 0; padding-left: 14px; border-left: 3px solid var(--blue); white-space: pre-line; }
pre.answer { white-space: pre; overflow-x: auto; font: 12px/1.5 ui-monospace, Menlo, Consolas, monospace; }
.failed { border-color: var(--bad); }
.failed .answer { border-color: var(--bad); }
.badge { display: inline-block; margin: 0 0 10px; padding: 1px 10px; border-radius: 99px; background: var(--bad);
  color: #fff; font-size: 14px; }
img { display: block; width: 100%; height: auto; }
.compared { grid-template-columns: 1fr; }
.compared > section { display: grid; grid-template-columns: repeat(auto-fit, minmax(min(200px, 100%), 1fr)); gap: 28px; }
figure { margin: 0; }
figcaption { color: var(--dim); text-align: center; margin: 0 0 8px; }
@media (max-width: 640px) {
  article { grid-template-columns: 1fr; padding: 20px; }
  img { width: min(240px, 100%); margin: 0 auto; }
}
</style>
)";

std::string html(std::string_view text) {
  std::string escaped;
  for (const char letter : text) {
    switch (letter) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += letter;
    }
  }
  return escaped;
}

void write(const fs::path& file, std::string_view text) {
  std::ofstream out(file, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error(file.native() + " cannot be written");
}

std::string element(std::string_view name, std::string_view attributes, std::string_view content) {
  std::string text = "<" + std::string(name);
  if (!attributes.empty()) text += " " + std::string(attributes);
  return text + ">" + std::string(content) + "</" + std::string(name) + ">\n";
}

class Page {
 public:
  Page(fs::path folder, std::string_view title) : folder_(std::move(folder)), title_(title) {
    fs::create_directories(folder_ / kPictures);
  }

  std::string text(const std::vector<Chapter>& chapters) {
    std::string contents, told;
    for (const Chapter& chapter : chapters) {
      const std::string id = "chapter" + std::to_string(&chapter - chapters.data() + 1);
      contents += element("li", "", "<a href=\"#" + id + "\">" + html(chapter.title) + "</a>");
      told += element("h2", "id=\"" + id + "\"", html(chapter.title));
      for (const Step& step : chapter.steps) told += article(step);
    }
    const std::string head = element("title", "", title_) + std::string(kHead);
    const std::string top = element("h1", "", title_) + element("p", "class=\"dim\"", outcome()) +
                            element("nav", "", element("ol", "", contents));
    return "<!doctype html>\n<html lang=\"en\">\n" + element("head", "", head) +
           element("body", "", element("main", "", top + told)) + "</html>\n";
  }

 private:
  std::string article(const Step& step) {
    ++steps_;
    failures_ += step.wentAsTold ? 0 : 1;
    // A tree of views keeps its columns.
    const bool isTree = step.answer.find("\n  ") != std::string::npos;
    const std::string words = element("p", "class=\"number\"", "Step " + std::to_string(steps_)) +
                              element("h3", "", html(step.text)) +
                              (step.wentAsTold ? "" : element("p", "class=\"badge\"", "Not so")) +
                              element(isTree ? "pre" : "p", "class=\"answer\"", html(step.answer));
    const std::string look =
        std::string(step.wentAsTold ? "" : "failed ") + (step.pictures.size() > 1 ? "compared" : "");
    return element("article", look.empty() ? "" : "class=\"" + look + "\"",
                   "\n" + element("div", "", words) + pictures(step));
  }

  std::string pictures(const Step& step) {
    std::string all;
    for (const Picture& each : step.pictures) {
      const std::string caption = each.caption.empty() ? "" : element("figcaption", "", html(each.caption));
      all += element("figure", "", caption + picture(each));
    }
    return all.empty() ? "" : element("section", "", all);
  }

  /// Both forms are kept: the page shows the PNG, which looks alike everywhere.
  std::string picture(const Picture& picture) {
    const auto [file, isNew] =
        stems_.try_emplace(picture.svg, std::string(kPictures) + "/" + numbered(stems_.size() + 1));
    const std::string& stem = file->second;
    if (isNew) {
      write(folder_ / (stem + ".svg"), picture.svg);
      writePng(picture.svg, folder_ / (stem + ".png"));
    }
    const std::string what = picture.caption.empty() ? "The phone" : html(picture.caption);
    const std::string image = "<img src=\"" + stem + ".png\" loading=\"lazy\" alt=\"" + what +
                              " after step " + std::to_string(steps_) + "\">";
    return element("a", "href=\"" + stem + ".svg\"", image);
  }

  static std::string numbered(std::size_t number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
  }

  std::string outcome() const {
    return std::to_string(steps_ - failures_) + " of " + std::to_string(steps_) +
           " steps went as told. Each picture shows the phone when its step was over.";
  }

  fs::path folder_;
  std::string title_;
  /// The files, without their endings, by the pictures in them: many a step leaves the screen as it was.
  std::map<std::string, std::string> stems_;
  int steps_ = 0;
  int failures_ = 0;
};

}  // namespace

fs::path writePage(const fs::path& folder, std::string_view title, const std::vector<Chapter>& chapters) {
  fs::path page = folder / "index.html";
  write(page, Page(folder, title).text(chapters));
  return page;
}

}  // namespace device
