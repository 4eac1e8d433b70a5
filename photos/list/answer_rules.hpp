#pragma once

#include <string_view>

namespace velvault12 {

/// What waits for the owner in the album strip and the album list. It travels to SpringBoard and back as a
/// number.
enum class AuthenticationMethod : int { openAlbum = 0, deleteAlbum = 1, removeLock = 2 };

/// Which of the recorded objects an answer is for.
enum class AnswerReceiver { albumList, zoomableGrid, albumTile, lastRequesting };

/// The receiver for the class name in an answer, "" where the answer has none.
AnswerReceiver answerReceiver(std::string_view className);

enum class AnswerStep { unlock, requestPassword };

/// With owner authentication chosen (`passOption` 0), an answer of NO means that the phone has no passcode to
/// ask for; the album then opens. An owner who fails or cancels gives no answer at all.
AnswerStep answerStep(bool success, int passOption);

}  // namespace velvault12
