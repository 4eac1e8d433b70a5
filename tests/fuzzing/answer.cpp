// SpringBoard's answer, as Photos takes it: one that agrees, to what the list asked, opens the album that
// waits, once; any other bytes open nothing.

#include "tests/fuzzing/fuzzed_photos.hpp"

namespace velvault12 {

class AnswerTarget : public FuzzedPhotos {
 public:
  AnswerTarget() : FuzzedPhotos({"Holidays"}, kWithPassword) {}

  void take(std::string_view bytes) override {
    // An answer to nothing that waited has left a pass to whatever is chosen next.
    albumList().select(placeOf(1));
    returnToList();
    albumList().select(placeOf(0));
    ASSERT_EQ(openAlbum(), "");

    write(kAnswer, bytes);
    const NSDictionary answer = NSDictionary::contentsOfFile(kAnswer);
    const Object success = answer["success"], method = answer["method"];
    const std::string receiver = stringOr("", answer["controller"]);
    const bool agrees = isStringOrNumber(success) && success.send<"boolValue", bool()>() &&
                        (!isStringOrNumber(method) || method.send<"intValue", int()>() == 0) &&
                        receiver != "PUZoomableGridViewController" &&
                        receiver != "PUAlbumListCellContentView";
    for (const std::string_view opens : {agrees ? "Holidays" : "", ""}) {
      phone_.post(kAnswered);
      turn();
      EXPECT_EQ(openAlbum(), opens);
      returnToList();
    }
  }
};

std::unique_ptr<FuzzTarget> makeTarget() { return std::make_unique<AnswerTarget>(); }

}  // namespace velvault12
