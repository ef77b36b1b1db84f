#include "cli/project_edit.h"

#include "platform/whole_file.h"
#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <sstream>

namespace quillon::cli {
namespace {

TEST(ProjectEdit, LeavesAProjectToAnotherProgramThatSavesItMeanwhile)
{
    constexpr const char* kPath = "C:\\Data\\p.qnp";
    test::MemoryHost machine;
    machine.files.Put(kPath, "");
    test::ScriptedAsk nobody;
    Project project;
    WriteProjectFile(project, kPath, machine.host, nobody);
    std::ostringstream out;
    std::ostringstream err;
    const Call call{"set", {}, {{"--json", nullptr, ""}}, "", nullptr};
    const Arguments arguments{.call = &call};
    const CallContext context{.arguments = arguments,
                              .host = machine.host,
                              .toolFolder = "C:\\Tool",
                              .toWindows = {},
                              .out = out,
                              .err = err};

    ProjectEdit edit(context, kPath);
    edit.session.project.Version.Comments = "mine";
    project.Version.Comments = "theirs";
    WriteProjectFile(project, kPath, machine.host, nobody);
    const std::string theirs = ReadWholeFile(machine.files, kPath);
    EXPECT_THROW(edit.Save("", {}), CallFailure);
    EXPECT_EQ(ReadWholeFile(machine.files, kPath), theirs);
    ASSERT_EQ(machine.files.List("C:\\Data").size(), 2U) << "the project and its lock";
    EXPECT_EQ(machine.files.List("C:\\Data")[1].name, "p.qnp.lock");
}

} // namespace
} // namespace quillon::cli
