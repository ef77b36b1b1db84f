// The example's project was made by hand; it has to be what the tool itself would have saved.
#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace quillon {
namespace {

class ExampleProject : public testing::TestWithParam<std::pair<const char*, std::size_t>> {};

TEST_P(ExampleProject, IsReadWholeAndSavedAsTheSameBytes)
{
    const auto& [name, rows] = GetParam();
    std::ifstream file(std::string(QUILLON_TEST_DATA "/../examples/") + name, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(bytes.empty());
    test::MemoryHost host;
    host.machine.decimalSign = '.';
    host.files.Put("C:\\example.qnp", bytes);
    test::ScriptedAsk ask;

    Project project;
    ASSERT_EQ(ReadProjectFile(project, "C:\\example.qnp", host.host, ask, "C:\\Quillon"),
              ReadEnd::Whole);
    EXPECT_EQ(project.Files.rows.size(), rows);
    // An empty picture means the tool's own, whose folder differs from machine to machine.
    project.DialogBoxes.DlgBitmap.clear();
    WriteProjectFile(project, "C:\\again.qnp", host.host, ask);
    EXPECT_EQ(host.files.Get("C:\\again.qnp"), bytes);
}

INSTANTIATE_TEST_SUITE_P(Both, ExampleProject,
                         testing::Values(std::pair{"hello/hello.qnp", std::size_t{10}},
                                         std::pair{"sailing/sailing.qnp", std::size_t{1}}));

} // namespace
} // namespace quillon
