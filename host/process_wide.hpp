#pragma once

namespace velvault12 {

/// The process's one `T`, made at first use. It is never destroyed: the host may call a hook while it exits.
template <class T>
T& processWide() {
  static T& instance = *new T;
  return instance;
}

}  // namespace velvault12
