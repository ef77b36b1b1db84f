// Plays the records of a metafile on a raster.
//
// Calls that no drawing in a file needs are passed over: mapping modes and viewports (the picture
// fills the size that it is shown in), palettes, flood fills, bitmaps that depend on a device,
// escapes. Text is upright whatever its angle. A region is its surrounding rectangle.
#pragma once

#include "design/letters.h"
#include "pictures/metafile_objects.h"
#include "pictures/metafile_records.h"
#include "pictures/raster.h"

namespace quillon {

/// The part of the plane, in the drawing's own units, that fills the picture.
struct MetafileWindow {
    int left = 0;
    int top = 0;
    int width = 1;
    int height = 1;
};

/// As SetWindowOrg has it.
void SetOrigin(const MetafileRecord& record, MetafileWindow& window);
/// As SetWindowExt has it. False, and no change, where a side is 0.
bool SetExtent(const MetafileRecord& record, MetafileWindow& window);

class MetafilePlayer {
public:
    /// `scale` pixels of the raster are one of the picture.
    MetafilePlayer(Raster& raster, Letters& letters, const MetafileWindow& window, int scale);

    /// Ends early where the raster's work is spent.
    void Play(PictureBytes records);

private:
    // What calls set, and `SaveDC` keeps.
    struct State {
        MetafileWindow window;
        MetafilePen pen;
        MetafileBrush brush;
        MetafileFont font;
        Colour textColour = 0;
        Colour bkColour = 0xFFFFFF;
        bool isBkOpaque = true;
        Combination combination = kCopy;
        FillRule fillRule = FillRule::EvenOdd;
        int textAlign = 0;
        int charExtra = 0;
        int x = 0;
        int y = 0;
        RasterClip clip;
    };
    using Record = MetafileRecord;
    struct Call {
        std::uint16_t function;
        std::size_t words; // that it has to have
        void (MetafilePlayer::*play)(const Record&);
    };
    static const Call kCalls[];

    // The state of drawing, in metafile_player.cpp.
    void SaveDC(const Record& record);
    void RestoreDC(const Record& record);
    void SetBkMode(const Record& record);
    void SetROP2(const Record& record);
    void SetPolyFillMode(const Record& record);
    void SetTextCharExtra(const Record& record);
    void SetTextAlign(const Record& record);
    void SetBkColor(const Record& record);
    void SetTextColor(const Record& record);
    void SetWindowOrg(const Record& record);
    void SetWindowExt(const Record& record);
    void OffsetWindowOrg(const Record& record);
    void ScaleWindowExt(const Record& record);
    void SelectClipRegion(const Record& record);
    void IntersectClipRect(const Record& record);
    void ExcludeClipRect(const Record& record);
    void OffsetClipRgn(const Record& record);

    // The objects, in metafile_objects.cpp.
    void SelectObject(const Record& record);
    void DeleteObject(const Record& record);
    void CreatePenIndirect(const Record& record);
    void CreateBrushIndirect(const Record& record);
    void CreateFontObject(const Record& record);
    void AddBrush(const MetafileBrush& brush);
    void CreateRegion(const Record& record);
    void CreateUnused(const Record& record);
    void CreatePatternBrush(const Record& record);
    void DIBCreatePatternBrush(const Record& record);

    // The shapes, in metafile_shapes.cpp.
    void MoveTo(const Record& record);
    void LineTo(const Record& record);
    void Polygon(const Record& record);
    void Polyline(const Record& record);
    void PolyPolygon(const Record& record);
    void Rectangle(const Record& record);
    void RoundRect(const Record& record);
    void Ellipse(const Record& record);
    void Arc(const Record& record);
    void Pie(const Record& record);
    void Chord(const Record& record);
    void SetPixel(const Record& record);

    // The bitmaps, in metafile_bitmaps.cpp.
    void PatBlt(const Record& record);
    void DIBBitBlt(const Record& record);
    void DIBStretchBlt(const Record& record);
    void StretchDIBits(const Record& record);
    void SetDIBitsToDevice(const Record& record);

    // The text, in metafile_text.cpp.
    void WriteText(const Record& record);
    void WriteExtendedText(const Record& record);

    // From the drawing's units to the raster's.
    FinePoint Place(int x, int y) const;
    FineRect Rect(int left, int top, int right, int bottom) const;
    /// Of a record that names bottom, right, top, left in this order from `word` on.
    FineRect RectAt(const Record& record, std::size_t word) const;
    PixelRect PixelsOf(const FineRect& rect) const;
    std::int32_t HBox(int width) const;
    std::int32_t VBox(int height) const;
    FinePoints PointsAt(const Record& record, std::size_t byte, std::size_t count) const;
    FineRect ArcRect(const Record& record) const;
    FinePoints ArcPoints(const Record& record) const;

    Paint BrushPaint() const;
    bool HasBrush() const { return state_.brush.style != BrushStyle::None; }
    void FillAndStroke(const FinePath& path);
    void FillAndStroke(FinePoints outline);
    void Stroke(const FinePoints& line, bool isClosed);
    void StrokeDashes(const FinePoints& line, bool isClosed, std::int32_t width,
                      const Paint& paint);

    struct Blit {
        FineRect target;
        // The part of the bitmap that is painted, from the bitmap's top left.
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        std::uint8_t table = 0; // see Raster::Combine
        bool countsFromBottom = false;
    };
    void PlayBitmap(const Record& record, const metafile::BitmapLayout& at);
    void PlayBlit(const Blit& blit, PictureBytes dib);
    void PaintBlit(const Blit& blit, const Picture& source);
    std::shared_ptr<const Picture> DecodeDib(PictureBytes dib, std::int64_t mostPixels);

    struct Line {
        Text text;
        FinePoint place;
        std::vector<int> advances; // in pixels; empty for the font's own
    };
    void PaintText(Line line);
    ScreenFont FontInPixels();
    void PaintMask(const LetterMask& mask, int left, int baseline);
    Text TextOf(PictureBytes bytes, std::size_t length) const;

    Raster& raster_;
    Letters& letters_;
    int scale_;
    State state_;
    std::vector<State> saved_;
    MetafileObjects objects_;
    std::int64_t tilePixels_ = 0; // of all pattern brushes
};

} // namespace quillon
