// What the number fields of the design's editors turn into when they are left. A bad entry is
// corrected silently; what follows a number is dropped.
#pragma once

#include "helpers/number_text.h"

#include <optional>

namespace quillon {

/// Where an object is in a direction: at the left or at the top first.
enum class DesignAlignment : Integer { Begin = 1, Centre = 2, End = 3 };

enum class UnderlineKind : Integer { None, Simple, Misty, Blended };

/// The extra space between the title's letters, -10 to 100.
Text CheckedCharInterSpace(const Text& entry);

/// Kept: 3 means the blended kind too, although choosing that kind sets 4.
Text CheckedUnderlineHeight(const Text& entry, UnderlineKind kind);

/// A stored height from before there was a smallest one.
Integer UnderlineHeightToEdit(Integer stored);

/// What choosing a kind of underline does to the other controls of its editor.
struct UnderlineChoice {
    bool takesColor1 = false;
    bool takesColor2 = false;
    // Empty: the spin control and the height stay as they are.
    std::optional<Integer> minHeight;
    std::optional<Integer> height;
};
UnderlineChoice ChoiceOf(UnderlineKind kind);

// The sizes of boxes, in pixels. `surface` is the size of the preview surface in that direction.
Text CheckedTextBoxSize(const Text& entry, Long surface);
Text CheckedRTFboxHeight(const Text& entry, Long surface);
/// Kept: there is no fixed upper limit for the width.
Text CheckedRTFboxWidth(const Text& entry, Long surface);
/// Of free and of changing pictures.
Text CheckedPictureSize(const Text& entry);
Text CheckedIntervalSeconds(const Text& entry);

// Kept: a bad size of a metafile falls back to its default and not to the nearest limit.
Text CheckedLogotypeWMFHeight(const Text& entry);
Text CheckedLogotypeWMFWidth(const Text& entry);

} // namespace quillon
