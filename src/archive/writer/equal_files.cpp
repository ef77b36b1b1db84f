#include "archive/writer/equal_files.h"

#include "helpers/sha256.h"
#include "platform/run_error.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <zlib.h>

namespace quillon {

namespace {

constexpr std::size_t kBeginning = 4 * 1024;
constexpr std::size_t kPiece = 256 * 1024;

using Places = std::vector<std::size_t>;

std::uint32_t Crc(std::uint32_t crc, std::span<const std::byte> bytes)
{
    return static_cast<std::uint32_t>(
        crc32(crc, reinterpret_cast<const Bytef*>(bytes.data()), static_cast<uInt>(bytes.size())));
}

class EqualFileSearch {
public:
    EqualFileSearch(const FileSystem& files, const std::vector<Text>& paths,
                    const std::function<void()>& processEvents)
        : files_(files), paths_(paths), processEvents_(processEvents), found_(paths.size()),
          piece_(kPiece)
    {
    }

    std::vector<FileContent> Run()
    {
        for (auto& [size, places] : BySize())
            if (places.size() > 1 && size > 0)
                CompareBeginnings(places, size);
            else
                Join(places); // nothing to read: a single file, or empty ones
        return std::move(found_);
    }

private:
    std::unordered_map<std::uint64_t, Places> BySize()
    {
        std::unordered_map<std::uint64_t, Places> bySize;
        for (std::size_t place = 0; place < paths_.size(); ++place) {
            found_[place].original = place;
            processEvents_();
            RunErrorNumber([&] {
                const FileStatus status = files_.Status(paths_[place]);
                found_[place].modified = status.modified;
                if (!status.isFolder)
                    bySize[status.size].push_back(place);
            });
        }
        return bySize;
    }

    void CompareBeginnings(const Places& places, std::uint64_t size)
    {
        std::map<std::uint32_t, Places> byBeginning;
        for (const std::size_t place : places)
            RunErrorNumber([&] {
                processEvents_();
                const auto file = files_.OpenInput(paths_[place]);
                const std::size_t count = file->Read(std::span(piece_).first(kBeginning));
                byBeginning[Crc(0, std::span(piece_).first(count))].push_back(place);
            });
        for (const auto& [crc, alike] : byBeginning)
            if (alike.size() > 1)
                CompareContents(alike, size);
    }

    void CompareContents(const Places& places, std::uint64_t size)
    {
        std::map<Sha256Digest, Places> byDigest;
        for (const std::size_t place : places)
            RunErrorNumber([&] {
                if (const auto digest = DigestOf(place, size))
                    byDigest[*digest].push_back(place);
            });
        for (const auto& [digest, equal] : byDigest)
            Join(equal);
    }

    /// Nothing where the file has another size by now.
    std::optional<Sha256Digest> DigestOf(std::size_t place, std::uint64_t size)
    {
        const auto file = files_.OpenInput(paths_[place]);
        Sha256 digest;
        std::uint32_t crc = 0;
        std::uint64_t read = 0;
        for (std::size_t count = file->Read(piece_); count > 0; count = file->Read(piece_)) {
            const auto bytes = std::span<const std::byte>(piece_).first(count);
            digest.Add(bytes);
            crc = Crc(crc, bytes);
            read += count;
            processEvents_();
        }
        if (read != size)
            return std::nullopt;
        found_[place].crc = crc;
        return digest.Finish();
    }

    // Places rise, so the first of them is the first in the list.
    void Join(const Places& equal)
    {
        for (const std::size_t place : equal)
            found_[place].original = equal.front();
    }

    const FileSystem& files_;
    const std::vector<Text>& paths_;
    const std::function<void()>& processEvents_;
    std::vector<FileContent> found_;
    std::vector<std::byte> piece_;
};

} // namespace

bool AreEqualFiles(const FileSystem& files, const Text& first, const Text& second)
{
    bool isEqual = false;
    RunErrorNumber([&] {
        const auto one = files.OpenInput(first);
        const auto other = files.OpenInput(second);
        std::vector<std::byte> bytes(kPiece);
        std::vector<std::byte> others(kPiece);
        std::size_t count = 0;
        do {
            count = one->Read(bytes);
            isEqual = other->Read(others) == count &&
                      std::equal(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count),
                                 others.begin());
        } while (isEqual && count > 0);
    });
    return isEqual;
}

std::vector<FileContent> FindEqualFiles(const FileSystem& files, const std::vector<Text>& paths,
                                        const std::function<void()>& processEvents)
{
    return EqualFileSearch(files, paths, processEvents).Run();
}

} // namespace quillon
