#pragma once

#include <string_view>

#include "host/foundation.hpp"

namespace velvault12 {

/// The messaging centre that SpringBoard serves.
inline constexpr std::string_view kServiceName = "com.qdx.velvault12";
/// Write an array to a path, for an app whose sandbox does not let it.
inline constexpr std::string_view kSaveArrayMessage = "savearray";
/// Ask the phone's owner; the answer is a file and a notification.
inline constexpr std::string_view kAuthenticateMessage = "authenticate";

/// The keys of the messages and of the answer file.
namespace key {
inline constexpr std::string_view kSender = "id";
inline constexpr std::string_view kArray = "array";
inline constexpr std::string_view kPath = "path";
inline constexpr std::string_view kMethod = "method";
inline constexpr std::string_view kAlbumName = "albumName";
inline constexpr std::string_view kController = "controller";
inline constexpr std::string_view kType = "type";
inline constexpr std::string_view kSuccess = "success";
}  // namespace key

/// Sends one message to SpringBoard's service. It is lost without notice where nobody serves.
void sendToService(std::string_view message, NSDictionary userInfo);

}  // namespace velvault12
