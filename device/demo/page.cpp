#include "device/demo/page.hpp"

#include <fstream>
#include <stdexcept>
#include <string>

#include "device/user/xml.hpp"

namespace device {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kHead = R"(<!doctype html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>velvault12 on a simulated iPhone</title>
<style>
:root { color-scheme: light dark; --text: #1d1d1f; --dim: #68686d; --page: #fff; --line: #d9d9de; --link: #0062c4; --bad: #c3232b; }
@media (prefers-color-scheme: dark) {
  :root { --text: #f5f5f7; --dim: #a3a3a9; --page: #1c1c1f; --line: #3a3a40; --link: #62aeff; --bad: #ff6961; }
}
* { box-sizing: border-box; }
html { scroll-padding-top: 64px; }
body { margin: 0; background: var(--page); color: var(--text); overflow-wrap: break-word;
  font: 17px/1.47 -apple-system, "Segoe UI", Roboto, Helvetica, Arial, sans-serif; }
a { color: var(--link); text-decoration: none; }
a:hover { text-decoration: underline; }
header, .columns { max-width: 1640px; margin: 0 auto; padding: 0 clamp(16px, 2vw, 32px); }
header { padding-top: clamp(40px, 7vw, 88px); padding-bottom: clamp(24px, 4vw, 48px); }
h1 { margin: 0; font-size: clamp(34px, 6vw, 64px); line-height: 1.06; letter-spacing: -0.025em; text-wrap: balance; }
header p { max-width: 42em; margin: 16px 0 0; color: var(--dim); font-size: clamp(17px, 2vw, 21px); }
header strong { color: var(--text); font-weight: 600; }
.bar { position: sticky; top: 0; z-index: 1; padding: 10px clamp(16px, 2vw, 32px); background: var(--page);
  border-bottom: 1px solid var(--line); font-size: 15px; }
nav { padding: 12px 0 8px; font-size: 15px; }
nav ol { margin: 0; padding: 0; list-style: none; columns: 2 220px; column-gap: 32px; }
nav li { padding: 4px 0; break-inside: avoid; }
h2 { margin: 0 0 20px; padding-top: 56px; font-size: clamp(24px, 3vw, 34px); line-height: 1.15;
  letter-spacing: -0.018em; }
.steps { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(300px, 100%), 1fr)); gap: 48px 32px; }
article { display: flex; flex-direction: column; min-width: 0; }
h3 { margin: 2px 0 6px; font-size: 19px; line-height: 1.3; letter-spacing: -0.01em; }
p { margin: 0; }
.number, .result { color: var(--dim); }
.number { font-size: 14px; }
.compared { grid-column: 1 / -1; }
.phones { display: grid; grid-template-columns: repeat(auto-fill, minmax(min(300px, 100%), 1fr)); gap: 32px;
  margin-top: auto; padding-top: 20px; }
figure { width: 100%; max-width: 375px; margin: 0; }
figcaption { margin-bottom: 8px; font-weight: 600; font-size: 15px; text-align: center; }
img { display: block; width: 100%; height: auto; }
details { margin-top: 12px; color: var(--dim); font-size: 13px; }
summary { cursor: pointer; }
pre { overflow-x: auto; font: 11px/1.5 ui-monospace, Menlo, Consolas, monospace; }
.failed .number, .failed .result { color: var(--bad); }
footer { height: 96px; }
@media (min-width: 1100px) {
  html { scroll-padding-top: 0; }
  .bar { display: none; }
  .columns { display: grid; grid-template-columns: 200px minmax(0, 1fr); gap: 32px; }
  nav { position: sticky; top: 0; align-self: start; max-height: 100vh; overflow-y: auto; padding: 56px 0 24px; }
  nav ol { columns: auto; }
}
</style>
</head>
)";

void write(const fs::path& file, std::string_view text) {
  std::ofstream out(file, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error(file.native() + " cannot be written");
}

std::string element(std::string_view name, std::string_view attributes, std::string_view content) {
  return "<" + std::string(name) + std::string(attributes) + ">" + std::string(content) + "</" +
         std::string(name) + ">\n";
}

/// `name` is the picture's file, relative to the page.
std::string figure(const Picture& picture, const std::string& name, int step) {
  const std::string what = picture.caption.empty() ? "The phone" : picture.caption;
  const std::string image = "<img" + attribute("src", name) +
                            attribute("alt", what + " after step " + std::to_string(step)) +
                            attribute("width", 399) + attribute("height", 836) + " loading=\"lazy\">";
  const std::string tree = element("summary", "", "View tree") + element("pre", "", xml(picture.viewTree));
  const std::string caption = picture.caption.empty() ? "" : element("figcaption", "", xml(picture.caption));
  return element("figure", "",
                 caption + element("a", attribute("href", name), image) + element("details", "", tree));
}

/// Writes the step's pictures, too.
std::string article(const Step& step, const fs::path& folder) {
  const std::string name = "step-" + std::to_string(step.number);
  std::string phones;
  for (const Picture& picture : step.pictures) {
    const std::size_t index = static_cast<std::size_t>(&picture - step.pictures.data());
    const std::string file = "pictures/" + name + (index > 0 ? "-" + std::to_string(index + 1) : "") + ".svg";
    write(folder / file, picture.svg);
    phones += figure(picture, file, step.number);
  }
  const std::string kind =
      std::string(step.passed ? "" : "failed ") + (step.pictures.size() > 1 ? "compared" : "");
  return element(
      "article", attribute("id", name) + attribute("class", kind),
      element("p", attribute("class", "number"),
              "Step " + std::to_string(step.number) + (step.passed ? "" : ": Failed")) +
          element("h3", "", xml(step.text)) +
          // What was on screen follows in the lines of an error.
          element("p", attribute("class", "result"), xml(step.result.substr(0, step.result.find('\n')))) +
          (phones.empty() ? "" : element("div", attribute("class", "phones"), phones)));
}

}  // namespace

fs::path writePage(const fs::path& folder, const Story& story) {
  fs::create_directories(folder / "pictures");
  std::string contents, chapters;
  for (const Chapter& chapter : story.chapters()) {
    const std::string id = "chapter-" + std::to_string(&chapter - story.chapters().data() + 1);
    contents += element("li", "", element("a", attribute("href", "#" + id), xml(chapter.title)));
    std::string steps;
    for (const Step& step : chapter.steps) steps += article(step, folder);
    chapters += element("section", "",
                        element("h2", attribute("id", id), xml(chapter.title)) +
                            element("div", attribute("class", "steps"), steps));
  }
  const std::string lead =
      element("strong", "", story.summary() + ".") +
      " Each picture shows the phone when its step was over. Open one to see it in full size.";
  const std::string body =
      element("header", "", element("h1", "", "velvault12 on a simulated iPhone") + element("p", "", lead)) +
      element("div", attribute("class", "bar"), element("a", attribute("href", "#contents"), "Contents")) +
      element("div", attribute("class", "columns"),
              element("nav", attribute("id", "contents"), element("ol", "", contents)) +
                  element("main", "", chapters)) +
      "<footer></footer>\n";
  fs::path page = folder / "index.html";
  write(page, std::string(kHead) + element("body", "", body) + "</html>\n");
  return page;
}

}  // namespace device
