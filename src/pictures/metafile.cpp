#include "pictures/metafile.h"

#include "helpers/twips.h"
#include "pictures/metafile_player.h"

#include <cstdlib>
#include <utility>

namespace quillon {

namespace {

constexpr std::int64_t kDotsPerInch = 96;
constexpr int kMaxSideSize = 32767;
// A drawing without a size on paper: as many pixels as it has units, or, of many, as twips.
constexpr int kMaxUnitsAsPixels = 2048;

// Drawn this much larger in both directions and made smaller again, which smooths the edges, as
// long as that takes no more than 64 MiB.
constexpr int kSmoothing[] = {4, 3, 2, 1};
constexpr std::int64_t kMaxRasterPixels = 16 << 20;
constexpr std::int64_t kMaxWork = 800'000'000;

struct Metafile {
    std::string bytes;
    std::size_t records = 0; // where they begin
    MetafileWindow window;
    int width = 0;
    int height = 0;
};

PictureBytes RecordsOf(const Metafile& file)
{
    return PictureBytes(file.bytes).Part(file.records);
}

/// In pixels; 0 where the drawing is smaller or larger than a picture can be.
int SideOf(std::int64_t units, std::int64_t pixels, std::int64_t perUnits)
{
    const std::int64_t side = (std::abs(units) * pixels + perUnits / 2) / perUnits;
    return side <= kMaxSideSize ? static_cast<int>(side) : 0;
}

void ReadPlaceableHeader(PictureBytes header, Metafile& file)
{
    constexpr int kUsualUnitsPerInch = 1440;
    namespace at = metafile::placeable;
    const int given = header.Word(at::kUnitsPerInch);
    const int inch = given == 0 ? kUsualUnitsPerInch : given;
    const int left = header.Short(at::kLeft);
    const int top = header.Short(at::kTop);
    file.window = {left, top, header.Short(at::kRight) - left, header.Short(at::kBottom) - top};
    file.width = SideOf(file.window.width, kDotsPerInch, inch);
    file.height = SideOf(file.window.height, kDotsPerInch, inch);
}

void SetSizeByWindow(Metafile& file)
{
    const bool isFine =
        std::max(std::abs(file.window.width), std::abs(file.window.height)) > kMaxUnitsAsPixels;
    file.width = SideOf(file.window.width, 1, isFine ? kTwipsPerPixel : 1);
    file.height = SideOf(file.window.height, 1, isFine ? kTwipsPerPixel : 1);
}

/// Goes through all records once. True where they end as they should.
bool CheckRecords(Metafile& file, std::size_t declaredSize, bool needsWindow)
{
    MetafileReader reader(RecordsOf(file));
    for (MetafileRecord record; reader.Next(record);) {
        if (!needsWindow || !record.given.Has(0, 4))
            continue;
        if (record.function == metafile::kSetWindowOrg)
            SetOrigin(record, file.window);
        else if (record.function == metafile::kSetWindowExt)
            needsWindow = !SetExtent(record, file.window);
    }
    // Some programs leave the last record out; then the size says whether the file is cut.
    const bool isWhole = RecordsOf(file).Size() + metafile::kHeader >= declaredSize;
    return !needsWindow && !reader.IsDamaged() && (reader.HasEnd() || isWhole);
}

Picture PlayAt(const Metafile& file, int width, int height, int scale, Letters& letters,
               bool& isExhausted)
{
    Picture raster{width * scale, height * scale, {}};
    raster.pixels.resize(static_cast<std::size_t>(raster.width) *
                         static_cast<std::size_t>(raster.height));
    WorkBudget work(kMaxWork);
    Raster target(WholeCanvas(raster.pixels.data(), raster.width, raster.height), work);
    MetafilePlayer(target, letters, file.window, scale).Play(RecordsOf(file));
    isExhausted = work.IsExhausted();
    return scale == 1 ? std::move(raster) : Scaled(raster, width, height);
}

Picture DrawAt(const Metafile& file, int width, int height, Letters& letters)
{
    const std::int64_t pixels = std::int64_t{width} * height;
    if (pixels > kMaxRasterPixels)
        return Scaled(DrawAt(file, (width + 1) / 2, (height + 1) / 2, letters), width, height);
    bool isExhausted = false;
    for (const int scale : kSmoothing) {
        if (pixels * scale * scale > kMaxRasterPixels)
            continue;
        Picture picture = PlayAt(file, width, height, scale, letters, isExhausted);
        if (!isExhausted)
            return picture;
        break;
    }
    // Too much for smooth edges. Where the work is too much even without them, what was drawn so
    // far is kept.
    return PlayAt(file, width, height, 1, letters, isExhausted);
}

} // namespace

bool IsMetafile(std::string_view bytes)
{
    const PictureBytes file(bytes);
    if (file.Size() >= 4 && file.Long(0) == metafile::kPlaceableKey)
        return true;
    namespace at = metafile::header;
    const int type = file.Word(at::kType);
    const int version = file.Word(at::kVersion);
    return (type == at::kInMemory || type == at::kOnDisk) &&
           file.Word(at::kHeaderWords) * 2 == metafile::kHeader &&
           (version == at::kVersion1 || version == at::kVersion3);
}

PictureResult DecodeMetafile(std::string bytes)
{
    if (bytes.size() > kMaxMetafileBytes)
        return {{}, PictureFault::TooLarge};
    auto file = std::make_shared<Metafile>();
    file->bytes = std::move(bytes);
    const PictureBytes all(file->bytes);
    const bool isPlaceable = all.Long(0) == metafile::kPlaceableKey;
    const PictureBytes header = all.Part(isPlaceable ? metafile::kPlaceableHeader : 0);
    if (!header.Has(0, metafile::kHeader) || !IsMetafile(header.View()))
        return {{}, PictureFault::Damaged};
    file->records = all.Size() - header.Size() + metafile::kHeader;
    if (isPlaceable)
        ReadPlaceableHeader(all, *file);
    // Never from a file of many gigabytes: the number is that of words.
    const std::uint64_t declared = std::uint64_t{header.Long(metafile::header::kFileWords)} * 2;
    if (declared > kMaxMetafileBytes * std::uint64_t{2} ||
        !CheckRecords(*file, static_cast<std::size_t>(declared), !isPlaceable))
        return {{}, PictureFault::Damaged};
    if (!isPlaceable)
        SetSizeByWindow(*file);
    if (file->width < 1 || file->height < 1)
        return {{}, PictureFault::Damaged};
    const int width = file->width;
    const int height = file->height;
    const auto memory = static_cast<std::int64_t>(file->bytes.size());
    return {ScalablePicture(
                width, height,
                [file = std::move(file)](int across, int down, Letters& letters) {
                    return DrawAt(*file, across, down, letters);
                },
                memory),
            PictureFault::None};
}

} // namespace quillon
