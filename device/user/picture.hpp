#pragma once

#include <string>

namespace device {

/// The phone with its screen as a person sees it at this moment, as an SVG document in points that fills its
/// window. In front of the app lies the system's sheet that asks for the owner, with the reason that it
/// gives; none for "". What is painted later lies in front. Each view is a group with its class as `class`,
/// what it says as `aria-label` and its place on the screen, as its ancestors' transforms find it, as
/// `data-frame` ("x y width height"). Main thread only.
std::string screenPicture(const std::string& ownerRequest);

}  // namespace device
