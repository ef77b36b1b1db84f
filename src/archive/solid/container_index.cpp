#include "archive/solid/container_index.h"

#include "archive/solid/fields_reader.h"
#include "archive/zip_directory.h"

#include <algorithm>
#include <limits>

namespace quillon {

namespace {

struct IndexCounts {
    std::uint32_t frameSize = 0;
    std::uint32_t frames = 0;
    std::uint32_t files = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.frameSize);
        visit(self.frames);
        visit(self.files);
    }
};

struct FrameFields {
    std::uint32_t packedSize = 0; // the digest follows

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.packedSize);
    }
};

struct EntryFields {
    std::uint64_t size = 0;
    std::uint16_t date = 0;
    std::uint16_t time = 0;
    std::uint8_t filter = 0;
    std::uint32_t nameLength = 0; // name and rows follow
    std::uint32_t rowsLength = 0;

    template <class Self, class Visitor>
    static constexpr void EachField(Self& self, Visitor&& visit)
    {
        visit(self.size);
        visit(self.date);
        visit(self.time);
        visit(self.filter);
        visit(self.nameLength);
        visit(self.rowsLength);
    }
};

void Append(zip::Bytes& bytes, std::span<const std::byte> more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

class IndexReader : private FieldsReader<zip::RefuseArchive> {
public:
    using FieldsReader::FieldsReader;

    ContainerIndex Read()
    {
        const auto counts = Take<IndexCounts>();
        Require(counts.frameSize > 0 && counts.frameSize <= kMaxContainerFrameSize,
                "ramarnas storlek är orimlig");
        index_.frameSize = counts.frameSize;
        for (std::uint32_t i = 0; i < counts.frames; ++i)
            TakeFrame();
        for (std::uint32_t i = 0; i < counts.files; ++i)
            TakeEntry();
        RequireEnd();
        const std::uint64_t needed =
            index_.totalSize / index_.frameSize + (index_.totalSize % index_.frameSize > 0 ? 1 : 0);
        Require(needed == index_.frames.size(), "filernas storlekar stämmer inte");
        return std::move(index_);
    }

private:
    void TakeFrame()
    {
        ContainerFrame frame{.packedSize = Take<FrameFields>().packedSize, .digest = {}};
        std::ranges::copy(TakeBytes(frame.digest.size()), frame.digest.begin());
        index_.frames.push_back(frame);
    }

    void TakeEntry()
    {
        const auto fields = Take<EntryFields>();
        ZipEntry entry;
        entry.name = TakeText(fields.nameLength);
        entry.comment = TakeText(fields.rowsLength);
        entry.size = fields.size;
        entry.modified = zip::FromDosTime(fields.date, fields.time);
        entry.hasCrc = false;
        entry.isSolid = true;
        entry.headerPosition = index_.totalSize;
        entry.method = fields.filter;
        Require(!entry.name.empty(), "en fil saknar namn");
        Require(fields.filter <= static_cast<std::uint8_t>(SolidFilter::X86),
                "en fil har ett okänt filter");
        Require(fields.size <= std::numeric_limits<std::uint64_t>::max() - index_.totalSize,
                "filerna är för stora");
        index_.totalSize += fields.size;
        index_.entries.push_back(std::move(entry));
    }

    ContainerIndex index_;
};

} // namespace

zip::Bytes ContainerIndexBytes(const ContainerIndex& index)
{
    zip::Bytes bytes;
    zip::AppendFields(bytes,
                      IndexCounts{index.frameSize, static_cast<std::uint32_t>(index.frames.size()),
                                  static_cast<std::uint32_t>(index.entries.size())});
    for (const ContainerFrame& frame : index.frames) {
        zip::AppendFields(bytes, FrameFields{frame.packedSize});
        Append(bytes, frame.digest);
    }
    for (const ZipEntry& entry : index.entries) {
        zip::AppendFields(bytes, EntryFields{entry.size, zip::DosDate(entry.modified),
                                             zip::DosTime(entry.modified),
                                             static_cast<std::uint8_t>(entry.method),
                                             static_cast<std::uint32_t>(entry.name.size()),
                                             static_cast<std::uint32_t>(entry.comment.size())});
        Append(bytes, std::as_bytes(std::span(entry.name)));
        Append(bytes, std::as_bytes(std::span(entry.comment)));
    }
    return bytes;
}

ContainerIndex ReadContainerIndex(std::span<const std::byte> bytes)
{
    return IndexReader(bytes).Read();
}

} // namespace quillon
