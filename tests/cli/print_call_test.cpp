// quillonc print as a whole program, its PDF read back by another one.
#include "workshop.h"

#include <filesystem>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::StartsWith;

class PrintCall : public Workshop {
protected:
    PrintCall()
    {
        disk.Put("src/Läs mig.txt", "text");
        project = SaveProjectOf({"Läs mig.txt"});
        // The library keeps its data about fonts until the program ends.
        disk.Put("leaks.txt", "leak:libfontconfig\n");
        environment["LSAN_OPTIONS"] = "print_suppressions=0:suppressions=" + disk.Path("leaks.txt");
    }

    /// The text of the PDF, laid out as on its pages.
    std::string TextOfPdf() const
    {
        const ProgramRun run = RunProgram({"/usr/bin/pdftotext", "-layout", pdf, "-"});
        EXPECT_EQ(run.exitCode, 0) << run.err;
        return run.out;
    }

    std::string project;
    std::string pdf = disk.Path("out/list.pdf");
};

TEST_F(PrintCall, WritesTheListAsAPdf)
{
    const ProgramRun run = Quillonc({"print", project, "--to", pdf});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(run.out, StartsWith("Utskrift: Z:\\"));
    EXPECT_THAT(run.out, HasSubstr("(1 sida)"));
    const std::string text = TextOfPdf();
    EXPECT_THAT(text, HasSubstr("Quillon 2004 - Fillista - [p.qnp]"));
    EXPECT_THAT(text, HasSubstr("Sid 1"));
    EXPECT_THAT(text, HasSubstr("Läs mig.txt"));
    EXPECT_THAT(text, HasSubstr("Antal objekt:"));
}

TEST_F(PrintCall, TakesLettersThatItsFontLacksFromOthers)
{
    Quillonc({"print", project, "--to", pdf});
    const auto fonts = [&] { return RunProgram({"/usr/bin/pdffonts", pdf}).out; };
    EXPECT_THAT(fonts(), testing::Not(HasSubstr("DejaVu")));
    // The name of the project's file may have any letters; these are Georgian.
    const std::string named = disk.Path("კატა.qnp");
    fs::copy_file(project, named);
    const ProgramRun run = Quillonc({"print", named, "--to", pdf});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    EXPECT_THAT(fonts(), HasSubstr("DejaVu"));
    EXPECT_THAT(TextOfPdf(), HasSubstr("[კატა.qnp]"));
}

TEST_F(PrintCall, EmbedsItsFonts)
{
    Quillonc({"print", project, "--to", pdf});
    const ProgramRun run = RunProgram({"/usr/bin/pdffonts", pdf});
    EXPECT_EQ(run.exitCode, 0);
    // Embedded, and only the letters that are used.
    EXPECT_THAT(run.out, testing::ContainsRegex("(TrueType|CID)[^\n]* yes yes "));
}

TEST_F(PrintCall, TellsItsWorkAsJson)
{
    const Json object = ObjectOf(Quillonc({"print", project, "--to", pdf, "--json"}));
    EXPECT_EQ(object["result"], "done");
    EXPECT_EQ(object["pages"], 1);
    EXPECT_EQ(object["exitCode"], 0);
}

TEST_F(PrintCall, PrintsNoEmptyList)
{
    const ProgramRun run = Quillonc({"print", SaveProjectOf({}), "--to", pdf});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("Det finns inga filer i fillistan!"));
    EXPECT_FALSE(fs::exists(pdf));
}

TEST_F(PrintCall, TellsWhereItCanNotWrite)
{
    const ProgramRun run = Quillonc({"print", project, "--to", disk.Path("none/list.pdf")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("list.pdf"));
}

TEST_F(PrintCall, NeedsAFile)
{
    const ProgramRun run = Quillonc({"print", project});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.err, HasSubstr("--to"));
}

} // namespace
} // namespace quillon::test
