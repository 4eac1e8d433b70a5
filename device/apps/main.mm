#include <cstdio>
#include <cstdlib>

#include "device/system/launch.hpp"

// Any app of the phone: device_app <device folder> <bundle identifier> <descriptor to tell when launched>
int main(int count, char** arguments) {
  if (count != 4) {
    std::fprintf(stderr, "%s is started by the device\n", arguments[0]);
    return 2;
  }
  return device::runApp({arguments[1], arguments[2]}, std::atoi(arguments[3]));
}
