#include "design/screen.h"

#include "design/background_painter.h"
#include "design/text_panel.h"

#include <algorithm>

namespace quillon {

namespace {

class ScreenPainter {
public:
    ScreenPainter(const Canvas& canvas, Letters& letters, const ScreenDesign& design)
        : canvas_(canvas), letters_(letters), design_(design),
          project_(design.project), scale_{double(canvas.width) / std::max(design.width, 1),
                                           double(canvas.height) / std::max(design.height, 1)}
    {
        // The margin is that of the tab on which the author placed the objects.
        surface_.Width = design.width * design.metrics.TPPX;
        surface_.Height = design.height * design.metrics.TPPY;
        surface_.Left = surface_.Top = kSurfaceMargin;
        paint_.UsePicture = project_.DesBackground.Type != Integer(BackgroundType::Colours);
        paint_.StretchPicture = project_.DesBackground.StretchPicture != kOff;
        SetBlend(paint_, project_.DesBackground);
    }

    void Paint()
    {
        // In its own size a picture keeps its shape, whatever the screen's.
        PaintBackground(canvas_, letters_, paint_, design_.pictures.background, scale_.Both());
        const int titleBottom = PaintTheTitle();
        if (!design_.hidesPictures)
            PaintPictures();
        PaintChanging();
        PaintLogotype();
        PaintTextBox(titleBottom);
        PaintRTFbox();
    }

    void KeepOnlyShown(ScreenPictures& pictures) const
    {
        if (paint_.StretchPicture) {
            pictures.background.KeepOnly(canvas_.width, canvas_.height);
        } else {
            CropToMiddle(pictures.background, canvas_.width, canvas_.height, scale_.Both());
            KeepInOwnSize(pictures.background);
        }
        for (std::size_t i = 0; i < pictures.pictures.size(); ++i)
            KeepInBox(pictures.pictures[i], BoxOf(i));
        const PixelRect changing = ChangingRect();
        if (project_.DesPicturesAnim.StretchPicture != kOff) {
            KeepInRect(pictures.changing, changing);
        } else {
            CropToCorner(pictures.changing, changing.Width(), changing.Height(), scale_.Both());
            KeepInOwnSize(pictures.changing);
        }
        if (const LogotypeBox box = BoxOfLogotype(); !box.isVisible)
            pictures.logotype = {};
        else
            KeepInRect(pictures.logotype, RectOf(box.place));
    }

    PixelRect ChangingRect() const
    {
        const ShownBox box = LayOutPicturesAnim(project_.DesPicturesAnim, design_.metrics);
        return box.isVisible ? RectOf(box.place) : PixelRect{};
    }

private:
    PixelRect RectOf(const SurfacePlace& place) const
    {
        const double across = scale_.x / design_.metrics.TPPX;
        const double down = scale_.y / design_.metrics.TPPY;
        const auto pixels = [](double value) { return static_cast<int>(RoundToEven(value)); };
        return {pixels((place.Left - surface_.Left) * across),
                pixels((place.Top - surface_.Top) * down),
                pixels((place.Left + place.Width - surface_.Left) * across),
                pixels((place.Top + place.Height - surface_.Top) * down)};
    }

    int PaintTheTitle()
    {
        const TitleRecords records{project_.DesTitle, project_.DesTitleUnderline,
                                   project_.DesSubTitle};
        PaintTitle(canvas_, LayOutTitle(letters_, records, scale_, canvas_.width), records);
        // Where it ends on the author's surface: the box below it is placed there.
        return LayOutTitle(letters_, records, {}, design_.width).TitleBottom;
    }

    void PaintPictures()
    {
        for (std::size_t i = 0; i < design_.pictures.pictures.size(); ++i)
            if (const PictureBox box = BoxOf(i); box.isVisible)
                PaintInBox(design_.pictures.pictures[i], box);
    }

    PictureBox BoxOf(std::size_t index) const
    {
        const ScalablePicture& picture = design_.pictures.pictures[index];
        if (picture.IsEmpty())
            return {};
        return BoxOfPicture(project_.DesPictures, index, {picture.Width(), picture.Height()},
                            surface_, design_.metrics);
    }

    static void KeepInRect(ScalablePicture& picture, const PixelRect& rect)
    {
        picture.KeepOnly(rect.Width(), rect.Height());
    }

    void KeepInBox(ScalablePicture& picture, const PictureBox& box) const
    {
        if (box.isStretched)
            KeepInRect(picture, RectOf(box.place));
        else
            KeepInOwnSize(picture);
    }

    void KeepInOwnSize(ScalablePicture& picture) const
    {
        picture.KeepOnly(scale_.BothPixels(picture.Width()), scale_.BothPixels(picture.Height()));
    }

    void PaintInBox(const ScalablePicture& picture, const PictureBox& box)
    {
        const PixelRect rect = RectOf(box.place);
        const Picture& sized = box.isStretched
                                   ? picture.InSize(rect.Width(), rect.Height(), letters_)
                                   : InOwnSize(picture, letters_, scale_.Both());
        PaintPicture(canvas_, sized, rect.left, rect.top);
    }

    void PaintChanging()
    {
        const PixelRect rect = ChangingRect();
        if (rect.IsEmpty() || design_.pictures.changing.IsEmpty())
            return;
        Canvas inside = canvas_;
        inside.clip = Intersect(canvas_.clip, rect);
        const ScalablePicture& picture = design_.pictures.changing;
        PaintPicture(inside,
                     project_.DesPicturesAnim.StretchPicture != kOff
                         ? picture.InSize(rect.Width(), rect.Height(), letters_)
                         : InOwnSize(picture, letters_, scale_.Both()),
                     rect.left, rect.top);
    }

    void PaintLogotype()
    {
        const LogotypeBox box = BoxOfLogotype();
        if (!box.isVisible)
            return;
        const PixelRect rect = RectOf(box.place);
        if (box.isMetafile)
            FillRect(canvas_, rect, PixelOf(box.BackColor));
        PaintPicture(canvas_,
                     design_.pictures.logotype.InSize(rect.Width(), rect.Height(), letters_),
                     rect.left, rect.top);
    }

    /// Not visible where there is none, or one that is too large.
    LogotypeBox BoxOfLogotype() const
    {
        const ScalablePicture& picture = design_.pictures.logotype;
        if (picture.IsEmpty())
            return {};
        const LogotypeSurround surround{.surface = surface_,
                                        .tabWidth = surface_.Width + 2 * kSurfaceMargin,
                                        .screen = design_.metrics,
                                        .paint = paint_,
                                        .isOnPicture = IsOnPicture(project_.DesBackground)};
        return LayOutLogotype(project_.DesLogotype, surround, [&](const Text&) {
            return PixelSize{picture.Width(), picture.Height()};
        });
    }

    void PaintTextBox(int titleBottom)
    {
        section::DesTextBox record = project_.DesTextBox;
        const TextBoxLayout layout =
            LayOutTextBox(record, surface_, design_.metrics, titleBottom, 0);
        if (layout.isVisible)
            PaintTextPanel(canvas_, letters_, RectOf(layout.box), record, scale_,
                           record.BoxUseBackColor != kOff);
    }

    void PaintRTFbox()
    {
        section::DesRTFbox record = project_.DesRTFbox;
        const ShownBox box = LayOutRTFbox(record, surface_, design_.metrics);
        if (!box.isVisible)
            return;
        static const RtfText kNoText;
        PaintRtfPanel(
            canvas_, letters_,
            {.box = RectOf(box.place), .backColor = record.RTFboxBackColor, .scale = scale_.Both()},
            design_.rtfBox ? *design_.rtfBox : kNoText);
    }

    const Canvas& canvas_;
    Letters& letters_;
    const ScreenDesign& design_;
    const Project& project_;
    ScreenScale scale_;
    SurfacePlace surface_;
    SurfacePaint paint_;
};

// For the arithmetic alone: no letter is drawn and no pixel painted.
struct NoLetters : Letters {
    FontHeight Height(const ScreenFont&) override { return {}; }
    std::vector<int> Advances(const ScreenFont&, const Text&) override { return {}; }
    LetterMask Draw(const ScreenFont&, const Text&, const std::vector<int>&) override { return {}; }
};

} // namespace

void PaintScreen(const Canvas& canvas, Letters& letters, const ScreenDesign& design)
{
    ScreenPainter(canvas, letters, design).Paint();
}

void KeepOnlyShown(ScreenPictures& pictures, const ScreenDesign& design, int width, int height)
{
    NoLetters none;
    ScreenPainter(WholeCanvas(nullptr, width, height), none, design).KeepOnlyShown(pictures);
}

PixelRect ChangingPicturesRect(const ScreenDesign& design, int width, int height)
{
    NoLetters none;
    return ScreenPainter(WholeCanvas(nullptr, width, height), none, design).ChangingRect();
}

} // namespace quillon
