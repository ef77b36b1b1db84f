#include "importers/vb_project.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;

struct ObjectCase {
    const char* line;
    const char* name; // null where the line names no file
};

// clang-format off
const ObjectCase kObjects[] = {
    {"Object={F9043C88-F6F2-101A-A3C9-08002B2F49FB}#1.2#0; COMDLG32.OCX", "COMDLG32.OCX"},
    {"Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; mscomctl.ocx  ", "mscomctl.ocx"},
    {"Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}; mscomctl.ocx", "mscomctl.ocx"},
    {"Object=\"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0; My Grid.ocx\"", "My Grid.ocx"},
    {"Object={00000000-0000-0000-0000-000000000000}#1.0#0; \"quoted.ocx\"", "quoted.ocx"},
    {"Object={00000000-0000-0000-0000-000000000000}#1.0#0; ..\\Bin\\own.ocx", "..\\Bin\\own.ocx"},
    {"  Object={0}#1.0#0; indented.ocx", "indented.ocx"},
    {"Object={0}#1.0#0; a.ocx; b.ocx", "a.ocx; b.ocx"},
    {"Title=\"A; B\" Object={0}; c.ocx", "B\" Object={0}; c.ocx"},
    {"Object=*\\A..\\Control\\Own.vbp", nullptr},
    {"Object={0}#1.0#0;tight.ocx", nullptr},
    {"Object={0}#1.0#0; ", nullptr},
    {"Object=", nullptr},
    {"Title=\"A; B\" Object={0}", nullptr},
    {"object={0}#1.0#0; lower.ocx", nullptr},
    {"Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\\WINDOWS\\System32\\stdole2.tlb#OLE Automation", nullptr},
    {"Reference=*\\A..\\Lib\\Lib.vbp", nullptr},
    {"Module=basMain; Main.bas", nullptr},
    {"Class=clsRow; ..\\Common\\Row.cls", nullptr},
    {"Form=frmMain.frm", nullptr},
    {"UserControl=ctlGrid.ctl", nullptr},
    {"", nullptr},
};
// clang-format on

TEST(ActiveXFileIn, FindsTheNameInEachFormOfALine)
{
    for (const ObjectCase& test : kObjects) {
        const auto name = ActiveXFileIn(test.line);
        EXPECT_EQ(name.has_value(), test.name != nullptr) << test.line;
        if (name && test.name)
            EXPECT_EQ(*name, test.name) << test.line;
    }
}

struct ModuleCase {
    const char* line;
    const char* name;
    const char* file;
};

TEST(ModuleIn, FindsNameAndFileInEachFormOfALine)
{
    const ModuleCase kModules[] = {
        {"Module=basMain; Main.bas", "basMain", "Main.bas"},
        {"module=basMain;Main.bas", "basMain", "Main.bas"},
        {"Module=basSetup1; ..\\Setup\\Setup1.bas", "basSetup1", "Setup1.bas"},
        {"Module=\"basMain; C:\\My Files\\Main.bas\"", "basMain", "Main.bas"},
        {"Module=OLD.BAS", "OLD.BAS", ""},
        {"Module=", "", ""},
        {"Module=; ", "", ""},
    };
    for (const ModuleCase& test : kModules) {
        const auto module = ModuleIn(test.line);
        ASSERT_TRUE(module) << test.line;
        EXPECT_EQ(module->name, test.name) << test.line;
        EXPECT_EQ(module->file, test.file) << test.line;
    }
    for (const char* const line : {"Class=clsRow; Row.cls", "Form=Module.frm", "", "Modules=3"})
        EXPECT_FALSE(ModuleIn(line)) << line;
}

TEST(ActiveXFilesOf, KeepTheOrderOfTheFile)
{
    EXPECT_THAT(ActiveXFilesOf({"Type=Exe", "Object={1}; b.ocx", "Form=a.frm", "Object=*\\Ax.vbp",
                                "Object={2}; a.ocx"})
                    .names,
                ElementsAre("b.ocx", "a.ocx"));
}

TEST(ActiveXFilesOf, EndWhereNoProjectHasMore)
{
    std::vector<Text> lines(kMaxReferences, "Object={1}; a.ocx");
    lines.emplace_back("Form=a.frm");
    EXPECT_EQ(ActiveXFilesOf(lines).names.size(), kMaxReferences);
    EXPECT_FALSE(ActiveXFilesOf(lines).isCut);
    lines.emplace_back("Object={2}; b.ocx");
    EXPECT_EQ(ActiveXFilesOf(lines).names.size(), kMaxReferences);
    EXPECT_TRUE(ActiveXFilesOf(lines).isCut);
}

} // namespace
} // namespace quillon::test
