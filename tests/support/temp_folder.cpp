#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace quillon::test {

namespace fs = std::filesystem;

TempFolder::TempFolder()
{
    std::string pattern = (fs::temp_directory_path() / "quillon-test-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw fs::filesystem_error("no folder for the test", pattern,
                                   std::error_code(errno, std::generic_category()));
    folder_ = fs::canonical(pattern);
}

TempFolder::~TempFolder()
{
    // A test may have taken the right to write from a folder or a file.
    std::error_code ignored;
    for (const auto& entry : fs::recursive_directory_iterator(
             folder_, fs::directory_options::skip_permission_denied, ignored))
        if (!entry.is_symlink(ignored))
            fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(folder_, ignored);
}

std::string TempFolder::Path(const std::string& inside) const
{
    return inside.empty() ? folder_.string() : (folder_ / inside).string();
}

void TempFolder::Put(const std::string& inside, const std::string& bytes) const
{
    fs::create_directories((folder_ / inside).parent_path());
    std::ofstream file(folder_ / inside, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    ASSERT_TRUE(file) << "can't write " << inside;
}

void TempFolder::PutFolder(const std::string& inside) const
{
    fs::create_directories(folder_ / inside);
}

std::string TempFolder::Get(const std::string& inside) const
{
    std::ifstream file(folder_ / inside, std::ios::binary);
    EXPECT_TRUE(file) << "no file " << inside;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

bool TempFolder::Has(const std::string& inside) const
{
    return fs::exists(folder_ / inside);
}

} // namespace quillon::test
