// The example's project was made by hand; it has to be what the tool itself would have saved.
#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace quillon {
namespace {

TEST(ExampleProject, IsReadWholeAndSavedAsTheSameBytes)
{
    std::ifstream file(QUILLON_TEST_DATA "/../examples/hello/hello.qnp", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(bytes.empty());
    test::MemoryHost host;
    host.machine.decimalSign = '.';
    host.files.Put("C:\\hello.qnp", bytes);
    test::ScriptedAsk ask;

    Project project;
    ASSERT_EQ(ReadProjectFile(project, "C:\\hello.qnp", host.host, ask, "C:\\Quillon"),
              ReadEnd::Whole);
    EXPECT_EQ(project.Files.rows.size(), 10U);
    // An empty picture means the tool's own, whose folder differs from machine to machine.
    project.DialogBoxes.DlgBitmap.clear();
    WriteProjectFile(project, "C:\\again.qnp", host.host, ask);
    EXPECT_EQ(host.files.Get("C:\\again.qnp"), bytes);
}

} // namespace
} // namespace quillon
