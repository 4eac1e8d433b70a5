#include "device/frameworks/Photos/shared_photo_database.hpp"

#include "device/system/disk.hpp"

namespace device {

PhotoDatabase& sharedPhotoDatabase() {
  thread_local PhotoDatabase database(diskOfThisProcess().locate(kPhotoDatabasePath));
  return database;
}

}  // namespace device
