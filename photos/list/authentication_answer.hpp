#pragma once

namespace velvault12 {

/// Reads SpringBoard's answer and passes it on to the object that waits for it. Without an answer file the
/// last requesting controller is told what an answer of NO to opening an album means.
void answerArrived();

}  // namespace velvault12
