// The shape of the setup's pages: what the tool previews and the setup shows is one layout. Sizes
// are dialog units, across a quarter of the width of the font's usual letter and down an eighth of
// its height, so that a page has the same proportions in every font and at every scale.
//
//   +---------+-----------------------------+
//   |         | Title                       |
//   | picture | text, fields                |   kPageHeight
//   |         |                             |
//   +---------+-----------------------------+   a line
//   |              < Back  Next >   Cancel  |   a button and a gap above and below
//   +---------------------------------------+
#pragma once

namespace quillon::PageLayout {

inline constexpr int kPageWidth = 317;
inline constexpr int kPageHeight = 193;

// The picture is as high as the page and has the shape of the standard one, which a font's own
// proportions must not distort. Another picture is scaled to fit in, its shape kept.
inline constexpr int kPictureWidthInPixels = 164;
inline constexpr int kPictureHeightInPixels = 314;

// Round what is beside the picture, and round the buttons.
inline constexpr int kMargin = 7;
// Between the parts of a page: title, text, fields.
inline constexpr int kGap = 6;
// Between buttons that belong together.
inline constexpr int kButtonGap = 3;
inline constexpr int kButtonWidth = 54;
inline constexpr int kButtonHeight = 14;

// The title in bold letters of this size to the usual ones. It may take so much of the page, and
// scrolls where it is longer.
inline constexpr double kTitleLetters = 1.5;
inline constexpr int kMaxTitleHeight = 64;
// The same for the text above fields, and for the one below an agreement.
inline constexpr int kMaxTextHeight = 60;
inline constexpr int kMaxFootTextHeight = 40;

} // namespace quillon::PageLayout
