#include "runtime/pages/page_arrangement.h"

#include "formats/page_layout.h"
#include "helpers/number_text.h"

#include <algorithm>

namespace quillon {

namespace {

using namespace PageLayout;

// In dialog units, as dialogs of Windows have them.
constexpr int kEntryHeight = 14;
constexpr int kLineHeight = 9;
constexpr int kBoxHeight = 11;
constexpr int kAfterLabel = 2;
constexpr int kLineThickness = 2; // pixels

bool Grows(PieceKind kind)
{
    return kind == PieceKind::Rest || kind == PieceKind::Paper || kind == PieceKind::RichPaper ||
           kind == PieceKind::List || kind == PieceKind::CheckList || kind == PieceKind::Gap;
}

bool HasLabelBefore(const PagePiece& piece)
{
    const bool isLine = piece.kind == PieceKind::Entry || piece.kind == PieceKind::Password ||
                        piece.kind == PieceKind::Value;
    return isLine && !piece.isLabelAbove;
}

bool HasLabelAbove(const PagePiece& piece)
{
    return piece.isLabelAbove || piece.kind == PieceKind::List ||
           piece.kind == PieceKind::CheckList;
}

class Arranger {
public:
    Arranger(const SetupPage& page, const PageRuler& ruler) : page_(page), ruler_(ruler) {}

    PageArrangement Arrange()
    {
        result_.width = HorizontalPixels(kPageWidth);
        const int pageHeight = VerticalPixels(kPageHeight);
        result_.picture = {0, 0, pageHeight * kPictureWidthInPixels / kPictureHeightInPixels,
                           pageHeight};
        left_ = result_.picture.right + HorizontalPixels(kMargin);
        right_ = result_.width - HorizontalPixels(kMargin);
        top_ = VerticalPixels(kMargin);
        PlaceTitle();
        PlacePieces(pageHeight - VerticalPixels(kMargin));
        PlaceButtons(pageHeight);
        return std::move(result_);
    }

private:
    int HorizontalPixels(double units) const { return Rounded(units * ruler_.UnitWidth()); }
    int VerticalPixels(double units) const { return Rounded(units * ruler_.UnitHeight()); }
    static int Rounded(double pixels) { return static_cast<int>(RoundToEven(pixels)); }

    void PlaceTitle()
    {
        if (page_.title.empty())
            return;
        const int height = ruler_.TextHeight(page_.title, right_ - left_, true);
        const int room = std::min(height, VerticalPixels(kMaxTitleHeight));
        result_.title = {left_, top_, right_, top_ + room};
        result_.titleScrolls = height > room;
        top_ += room + VerticalPixels(kGap);
    }

    /// Without its label; a piece that grows has no height of its own.
    int OwnHeight(const PagePiece& piece) const
    {
        switch (piece.kind) {
        case PieceKind::Paragraph:
            // A description that changes keeps its room.
            return piece.field == PageField::ComponentText
                       ? VerticalPixels(piece.maxHeight)
                       : std::min(ruler_.TextHeight(piece.text, right_ - left_, false),
                                  VerticalPixels(piece.maxHeight));
        case PieceKind::Entry:
        case PieceKind::Password:
            return VerticalPixels(kEntryHeight);
        case PieceKind::Button:
            return VerticalPixels(kButtonHeight);
        case PieceKind::Value:
            return VerticalPixels(kLineHeight);
        case PieceKind::CheckBox:
            return VerticalPixels(kBoxHeight);
        default:
            return 0;
        }
    }

    int LabelHeight(const PagePiece& piece) const
    {
        return HasLabelAbove(piece) ? VerticalPixels(kLineHeight) + VerticalPixels(kAfterLabel) : 0;
    }

    // Labels in a row of lines are in a column of their own.
    int LabelColumn() const
    {
        int width = 0;
        for (const PagePiece& piece : page_.pieces)
            if (HasLabelBefore(piece))
                width = std::max(width, ruler_.LineWidth(piece.label));
        return width + HorizontalPixels(kGap);
    }

    void PlacePieces(int bottom)
    {
        int fixed = 0;
        int growing = 0;
        for (const PagePiece& piece : page_.pieces) {
            fixed += OwnHeight(piece) + LabelHeight(piece) + VerticalPixels(GapBehind(piece));
            growing += Grows(piece.kind) ? 1 : 0;
        }
        if (!page_.pieces.empty())
            fixed -= VerticalPixels(GapBehind(page_.pieces.back()));
        const int rest = std::max(0, bottom - top_ - fixed);
        const int labels = LabelColumn();
        for (const PagePiece& piece : page_.pieces) {
            const int height = Grows(piece.kind) ? rest / growing : OwnHeight(piece);
            result_.pieces.push_back(Place(piece, height, labels));
        }
    }

    // Lines that only inform stand closer.
    static double GapBehind(const PagePiece& piece)
    {
        return piece.kind == PieceKind::Gap     ? 0
               : piece.kind == PieceKind::Value ? kAfterLabel
                                                : kGap;
    }

    PlacedPiece Place(const PagePiece& piece, int height, int labels)
    {
        PlacedPiece placed;
        if (HasLabelAbove(piece)) {
            placed.label = {left_, top_, right_, top_ + VerticalPixels(kLineHeight)};
            top_ += LabelHeight(piece);
        }
        placed.field = {left_, top_, right_, top_ + height};
        if (HasLabelBefore(piece)) {
            // Centred on the height of the letters in the field.
            const int inset = (height - VerticalPixels(kLineHeight)) / 2;
            placed.label = {left_, top_ + inset, left_ + labels,
                            top_ + inset + VerticalPixels(kLineHeight)};
            placed.field.left += labels;
        }
        if (!piece.button.empty()) {
            placed.button = placed.field;
            placed.button.left = right_ - ButtonWidth(piece.button);
            placed.field.right = placed.button.left - HorizontalPixels(kButtonGap);
        }
        if (piece.kind == PieceKind::Button)
            placed.field.right = left_ + ButtonWidth(piece.label);
        const bool isText = piece.kind == PieceKind::Paragraph || piece.kind == PieceKind::Rest;
        placed.scrolls = isText && ruler_.TextHeight(piece.text, right_ - left_, false) > height;
        top_ += height + VerticalPixels(GapBehind(piece));
        return placed;
    }

    int ButtonWidth(const Text& caption) const
    {
        return std::max(HorizontalPixels(kButtonWidth),
                        ruler_.LineWidth(caption) + HorizontalPixels(2 * kGap));
    }

    void PlaceButtons(int pageHeight)
    {
        result_.line = pageHeight;
        const int top = pageHeight + kLineThickness + VerticalPixels(kMargin);
        result_.height = top + VerticalPixels(kButtonHeight) + VerticalPixels(kMargin);
        const auto button = [&](int right) {
            return PixelRect{right - HorizontalPixels(kButtonWidth), top, right,
                             top + VerticalPixels(kButtonHeight)};
        };
        if (page_.buttons == PageButtons::Finish) {
            result_.forward = button(right_);
            return;
        }
        result_.away = button(right_);
        result_.forward = button(result_.away.left - HorizontalPixels(kMargin));
        result_.back = button(result_.forward.left - HorizontalPixels(kButtonGap));
    }

    const SetupPage& page_;
    const PageRuler& ruler_;
    PageArrangement result_;
    int left_ = 0;
    int right_ = 0;
    int top_ = 0;
};

} // namespace

PageArrangement ArrangePage(const SetupPage& page, const PageRuler& ruler)
{
    return Arranger(page, ruler).Arrange();
}

} // namespace quillon
