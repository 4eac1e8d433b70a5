#include "device/user/alert_text.hpp"

namespace device {
namespace {

// Ends each text, and is typed by nobody.
constexpr char kEnd = '\x1f';

// What a text is, in front of it.
constexpr char kTitle = 't';
constexpr char kMessage = 'm';
constexpr char kField = 'f';
constexpr char kButton = 'b';

void append(std::string& encoded, char kind, std::string_view text) {
  encoded.append(1, kind).append(text).append(1, kEnd);
}

void take(AlertText& alert, char kind, const std::string& text) {
  if (kind == kTitle) alert.title = text;
  if (kind == kMessage) alert.message = text;
  if (kind == kField) alert.fields.push_back(text);
  if (kind == kButton) alert.buttons.push_back(text);
}

}  // namespace

std::string encode(const AlertText& alert) {
  std::string encoded;
  append(encoded, kTitle, alert.title);
  append(encoded, kMessage, alert.message);
  for (const std::string& field : alert.fields) append(encoded, kField, field);
  for (const std::string& button : alert.buttons) append(encoded, kButton, button);
  return encoded;
}

AlertText decodeAlertText(std::string_view encoded) {
  AlertText alert;
  for (std::size_t end; (end = encoded.find(kEnd)) != encoded.npos; encoded.remove_prefix(end + 1)) {
    if (end > 0) take(alert, encoded.front(), std::string(encoded.substr(1, end - 1)));
  }
  return alert;
}

}  // namespace device
