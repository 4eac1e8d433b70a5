#include "benchmarks/heap_growth/heap_growth.hpp"
#include "startup/service_messages.hpp"
#include "tests/phone_test.hpp"

namespace velvault12 {
namespace {

class Home : public PhoneTest {
 public:
  bool keepsNothing(Effort effort) {
    auto library = phone_.photoLibrary();
    for (const std::string_view title : {"Open", "Locked", "Empty"}) library.addAlbum(title);
    writeStrings(kLockedAlbums, {"Locked"});
    phone_.launchHere(device::kSpringBoard);
    const auto hooks = letTimePass();
    Drivers drivers{.all = {{"SpringBoard", "applicationDidFinishLaunching:", [] { launchAgain(); }},
                            {"SpringBoard", "handleMessageNamed:withUserInfo:", [] { save(); }},
                            {"SpringBoard", "authenticate:withUserInfo:", [this] { authenticate(); }}},
                    .receivers = {}};
    addLibraryFilter(drivers);
    return measure(effort, hooks, drivers);
  }

 private:
  void TestBody() override {}

  static UIApplication springBoard() { return UIApplication::sharedApplication(); }
  /// It launches once in its life, and so never lets go of the window that it had.
  static void launchAgain() {
    const auto former = Ref<UIView>::adopt(springBoard().keyWindow());
    springBoard().send<"applicationDidFinishLaunching:", void(UIApplication)>(springBoard());
    former->setHidden(true);
  }
  static void save() {
    springBoard().send<"handleMessageNamed:withUserInfo:", Object(NSString, Object)>(
        NSString::from(kSaveArrayMessage), dictionaryOf({{key::kArray, NSArray::from({"Locked"})},
                                                         {key::kPath, NSString::from(kLockedAlbums)}}));
  }
  /// The owner agrees.
  void authenticate() const {
    springBoard().send<"authenticate:withUserInfo:", Object(NSString, Object)>(
        NSString::from(kAuthenticateMessage),
        dictionaryOf({{key::kMethod, NSNumber::from(0)}, {key::kAlbumName, NSString::from("Locked")}}));
    me_.answerOwnerRequest(device::OwnerAnswer::success);
  }
};

}  // namespace

bool springBoardKeepsNothing(Effort effort) { return Home().keepsNothing(effort); }

}  // namespace velvault12
