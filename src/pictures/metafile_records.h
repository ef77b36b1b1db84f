// The records of a metafile (WMF) and where they are: a header of its own in most files from
// programs that draw ("placeable"), the header, then one call of the graphics system after another.
#pragma once

#include "pictures/metafile_layout.h"
#include "pictures/picture_bytes.h"

namespace quillon {

namespace metafile {

inline constexpr std::size_t kPlaceableHeader = 22;
inline constexpr std::size_t kHeader = 18;
inline constexpr std::size_t kRecordHeader = 6;
inline constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;

enum Function : std::uint16_t {
    kEndOfFile = 0x0000,
    kSaveDC = 0x001E,
    kCreatePalette = 0x00F7,
    kSetBkMode = 0x0102,
    kSetROP2 = 0x0104,
    kSetPolyFillMode = 0x0106,
    kSetTextCharExtra = 0x0108,
    kRestoreDC = 0x0127,
    kSelectClipRegion = 0x012C,
    kSelectObject = 0x012D,
    kSetTextAlign = 0x012E,
    kDIBCreatePatternBrush = 0x0142,
    kDeleteObject = 0x01F0,
    kCreatePatternBrush = 0x01F9,
    kSetBkColor = 0x0201,
    kSetTextColor = 0x0209,
    kSetWindowOrg = 0x020B,
    kSetWindowExt = 0x020C,
    kOffsetWindowOrg = 0x020F,
    kLineTo = 0x0213,
    kMoveTo = 0x0214,
    kOffsetClipRgn = 0x0220,
    kCreatePenIndirect = 0x02FA,
    kCreateFontIndirect = 0x02FB,
    kCreateBrushIndirect = 0x02FC,
    kPolygon = 0x0324,
    kPolyline = 0x0325,
    kScaleWindowExt = 0x0410,
    kExcludeClipRect = 0x0415,
    kIntersectClipRect = 0x0416,
    kEllipse = 0x0418,
    kRectangle = 0x041B,
    kSetPixel = 0x041F,
    kTextOut = 0x0521,
    kPolyPolygon = 0x0538,
    kRoundRect = 0x061C,
    kPatBlt = 0x061D,
    kCreateRegion = 0x06FF,
    kArc = 0x0817,
    kPie = 0x081A,
    kChord = 0x0830,
    kDIBBitBlt = 0x0940,
    kExtTextOut = 0x0A32,
    kDIBStretchBlt = 0x0B41,
    kSetDIBitsToDevice = 0x0D33,
    kStretchDIBits = 0x0F43
};

} // namespace metafile

/// One call. Offsets count from the end of the record's header.
struct MetafileRecord {
    std::uint16_t function = 0;
    PictureBytes given;

    /// The number at that place, counted in words.
    std::int16_t operator[](std::size_t word) const { return given.Short(word * 2); }
    /// The only argument, or the first that is written.
    std::int16_t Value() const { return given.Short(0); }
    /// The same where it is a count, or the number of an object.
    std::uint16_t Count() const { return given.Word(0); }
    std::int32_t Colour() const { return given.SignedLong(0); }
};

/// Goes from record to record; false after the last one, and from where the file is damaged.
class MetafileReader {
public:
    explicit MetafileReader(PictureBytes records) : records_(records) {}

    bool Next(MetafileRecord& record)
    {
        const std::uint64_t size = std::uint64_t{records_.Long(at_)} * 2;
        const bool isRecord = records_.Has(at_, metafile::kRecordHeader) &&
                              size >= metafile::kRecordHeader && records_.Has(at_, size);
        if (!isRecord) {
            isDamaged_ = isDamaged_ || at_ != records_.Size();
            return false;
        }
        record.function = records_.Word(at_ + 4);
        record.given = records_.Part(at_ + metafile::kRecordHeader,
                                     static_cast<std::size_t>(size) - metafile::kRecordHeader);
        at_ += static_cast<std::size_t>(size);
        hasEnd_ = record.function == metafile::kEndOfFile;
        return !hasEnd_;
    }

    bool IsDamaged() const { return isDamaged_; }
    /// Whether the record that ends a file was met.
    bool HasEnd() const { return hasEnd_; }

private:
    PictureBytes records_;
    std::size_t at_ = 0;
    bool isDamaged_ = false;
    bool hasEnd_ = false;
};

} // namespace quillon
