// Which editor a double click on the surface itself opens.
#pragma once

#include "design/object_layout.h"

namespace quillon {

enum class SurfaceEditor { Title, Underline, Background };

/// What is on the surface from its top downwards.
struct SurfaceTexts {
    Integer fontSize = 0; // of the title, points
    Integer UnderlineType = 0;
    Integer UnderlineHeight = 0; // pixels
    bool hasSubTitle = false;
};

/// `y` is the height of the press before the double click, in twips from the surface's top. The
/// bands reckon with the usual 96 dots per inch, whatever the screen has.
SurfaceEditor EditorAt(Long y, const SurfaceTexts& texts, ScreenMetrics screen);

} // namespace quillon
