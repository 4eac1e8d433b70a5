#include "photos/list/answer_rules.hpp"

namespace velvault12 {

AnswerReceiver answerReceiver(std::string_view className) {
  if (className == "PUAlbumListViewController") return AnswerReceiver::albumList;
  if (className == "PUZoomableGridViewController") return AnswerReceiver::zoomableGrid;
  if (className == "PUAlbumListCellContentView") return AnswerReceiver::albumTile;
  return AnswerReceiver::lastRequesting;
}

AnswerStep answerStep(bool success, int passOption) {
  return success || passOption == 0 ? AnswerStep::unlock : AnswerStep::requestPassword;
}

}  // namespace velvault12
