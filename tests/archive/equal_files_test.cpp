#include "archive/writer/equal_files.h"

#include "support/memory_host.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

/// Counts what is read of each file.
class CountingFiles : public MemoryFiles {
public:
    std::unique_ptr<InputFile> OpenInput(const Text& path) const override
    {
        class Counting : public InputFile {
        public:
            Counting(std::unique_ptr<InputFile> file, std::uint64_t& bytes)
                : file_(std::move(file)), bytes_(bytes)
            {
            }
            std::size_t Read(std::span<std::byte> buffer) override
            {
                const std::size_t count = file_->Read(buffer);
                bytes_ += count;
                return count;
            }
            void Seek(std::uint64_t position) override { file_->Seek(position); }
            std::uint64_t Size() const override { return file_->Size(); }

        private:
            std::unique_ptr<InputFile> file_;
            std::uint64_t& bytes_;
        };
        return std::make_unique<Counting>(MemoryFiles::OpenInput(path), bytesRead);
    }

    mutable std::uint64_t bytesRead = 0;
};

class EqualFiles : public testing::Test {
protected:
    void Put(const Text& path, const std::string& bytes)
    {
        files.Put(path, bytes);
        paths.push_back(path);
    }
    std::vector<std::size_t> Originals()
    {
        std::vector<std::size_t> originals;
        for (const FileContent& content : FindEqualFiles(files, paths, [this] { ++yields; }))
            originals.push_back(content.original);
        return originals;
    }

    CountingFiles files;
    std::vector<Text> paths;
    int yields = 0;
};

TEST_F(EqualFiles, AreFoundWhateverTheirPaths)
{
    Put("C:\\a.txt", "same bytes");
    Put("C:\\b.txt", "other byte");
    Put("D:\\Sub\\c.dll", "same bytes");
    Put("C:\\empty", "");
    Put("C:\\d", "same bytes");
    Put("C:\\empty2", "");
    EXPECT_THAT(Originals(), ElementsAre(0, 1, 0, 3, 0, 3));
    EXPECT_GE(yields, 6);
}

TEST_F(EqualFiles, OfDifferentSizesAreNotOpened)
{
    Put("C:\\a", std::string(100000, 'a'));
    Put("C:\\b", std::string(100001, 'a'));
    Put("C:\\c", std::string(100002, 'a'));
    EXPECT_THAT(Originals(), ElementsAre(0, 1, 2));
    EXPECT_EQ(files.bytesRead, 0U);
}

TEST_F(EqualFiles, WithOtherBeginningsAreNotReadWhole)
{
    Put("C:\\a", std::string(1000000, 'a'));
    Put("C:\\b", std::string(1000000, 'b'));
    EXPECT_THAT(Originals(), ElementsAre(0, 1));
    EXPECT_EQ(files.bytesRead, 2U * 4096);
}

TEST_F(EqualFiles, DifferByTheirLastByte)
{
    std::string bytes(700000, 'a');
    Put("C:\\a", bytes);
    bytes.back() = 'b';
    Put("C:\\b", bytes);
    Put("C:\\c", bytes);
    EXPECT_THAT(Originals(), ElementsAre(0, 1, 1));
    EXPECT_EQ(files.bytesRead, 3U * (4096 + 700000));
}

TEST_F(EqualFiles, LeaveWhatCanNotBeReadToItsPacker)
{
    Put("C:\\a", "bytes");
    paths.push_back("C:\\gone");
    Put("C:\\b", "bytes");
    files.At("C:\\b").unreadable = true;
    EXPECT_THAT(Originals(), ElementsAre(0, 1, 2));
}

} // namespace
} // namespace quillon::test
