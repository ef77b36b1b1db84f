// Pictures of the screen: decoded pixels, made transparent in one colour, scaled and painted.
#pragma once

#include "design/canvas.h"

#include <optional>

namespace quillon {

/// Decoded pixels, row by row from the top; empty where there is no picture.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Pixel> pixels;

    bool IsEmpty() const { return pixels.empty(); }
};

/// The colour with that `TransparentColorNr`; one that there is not is black, as in a new project.
Colour TransparentColour(Integer number);

/// The colour that a free picture or the logotype loses; nothing where it keeps them all.
std::optional<Colour> TransparentColourOf(const section::DesPictures& record, std::size_t index);
std::optional<Colour> TransparentColourOf(const section::DesLogotype& record);

/// Every pixel of exactly that colour becomes transparent.
void MakeTransparent(Picture& picture, Colour colour);

/// The picture in another size: the mean of the pixels where it becomes smaller, a mix of the
/// neighbours where it becomes larger. Sizes below 1 give an empty picture.
Picture Scaled(const Picture& picture, int width, int height);

/// The picture with its top left at that point.
void PaintPicture(const Canvas& canvas, const Picture& picture, int left, int top);

} // namespace quillon
