#include "photos/list/answer_rules.hpp"

#include <gtest/gtest.h>

namespace velvault12 {
namespace {

TEST(Answer, FindsItsReceiverByClassName) {
  using enum AnswerReceiver;
  EXPECT_EQ(answerReceiver("PUAlbumListViewController"), albumList);
  EXPECT_EQ(answerReceiver("PUZoomableGridViewController"), zoomableGrid);
  EXPECT_EQ(answerReceiver("PUAlbumListCellContentView"), albumTile);
  EXPECT_EQ(answerReceiver("PUHorizontalAlbumListGadget"), lastRequesting);
  EXPECT_EQ(answerReceiver("PUAlbumListViewController "), lastRequesting);
  EXPECT_EQ(answerReceiver(""), lastRequesting);
}

TEST(Answer, OfNoStillUnlocksWhenTheOwnerIsToBeAsked) {
  EXPECT_EQ(answerStep(false, 0), AnswerStep::unlock);
  EXPECT_EQ(answerStep(false, 1), AnswerStep::requestPassword);
  EXPECT_EQ(answerStep(false, 2), AnswerStep::requestPassword);
  EXPECT_EQ(answerStep(false, -1), AnswerStep::requestPassword);
  for (const int option : {-1, 0, 1, 2}) EXPECT_EQ(answerStep(true, option), AnswerStep::unlock);
}

}  // namespace
}  // namespace velvault12
