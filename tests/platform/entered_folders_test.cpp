#include "platform/entered_folders.h"

namespace quillon {
namespace {

TEST(EnteredFolders, HasAFolderUntilItIsLeft)
{
    EnteredFolders folders;
    folders.Enter(7);
    folders.Enter(8);
    EXPECT_TRUE(folders.Has(7) && folders.Has(8));
    EXPECT_FALSE(folders.Has(9));
    EXPECT_EQ(folders.Depth(), 2U);
    folders.Leave();
    EXPECT_TRUE(folders.Has(7));
    EXPECT_FALSE(folders.Has(8)) << "two folders may hold a link to it";
    EXPECT_EQ(folders.Depth(), 1U);
}

TEST(EnteredFolders, NeverHasOneWithoutAnIdentity)
{
    EnteredFolders folders;
    folders.Enter(0);
    EXPECT_FALSE(folders.Has(0));
}

} // namespace
} // namespace quillon
