#include "edit_workshop.h"

#include <chrono>

namespace quillon::test {

namespace fs = std::filesystem;

namespace {

// With a date of its own, a file that was written again with the same bytes can be detected.
fs::file_time_type MadeOld(const std::string& file)
{
    const auto old = fs::last_write_time(file) - std::chrono::hours(50);
    fs::last_write_time(file, old);
    return old;
}

} // namespace

EditWorkshop::EditWorkshop()
{
    disk.Put("src/App/Prog.exe", "program");
    disk.Put("src/App/Sub/a.txt", "some text");
    disk.Put("src/App/Sub/b.dll", "library");
    disk.Put("src/Other/c.txt", "more text");
    SaveProjectOf({});
}

ProgramRun EditWorkshop::Edit(std::vector<std::string> words, RunAs user) const
{
    // "replace" has a further word before the project.
    words.insert(words.begin() + (words[0] == "replace" ? 2 : 1), project);
    return Quillonc(words, user);
}

std::string EditWorkshop::Done(std::vector<std::string> words) const
{
    const ProgramRun run = Edit(std::move(words));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return run.out;
}

Json EditWorkshop::DoneAsObject(std::vector<std::string> words) const
{
    words.emplace_back("--json");
    const ProgramRun run = Edit(std::move(words));
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return ObjectOf(run);
}

void EditWorkshop::ExpectRefused(const std::vector<std::string>& words, int exitCode,
                                 const std::string& err, RunAs user) const
{
    const std::string before = disk.Get("p.qnp");
    const auto names = Names("");
    const auto date = MadeOld(project);
    const ProgramRun run = Edit(words, user);
    EXPECT_EQ(run.exitCode, exitCode) << run.out;
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, testing::HasSubstr(err));
    EXPECT_TRUE(disk.Get("p.qnp") == before); // a long list is not printed
    EXPECT_EQ(fs::last_write_time(project), date);
    EXPECT_EQ(Names(""), names);
}

void EditWorkshop::ExpectUntouched(const std::vector<std::string>& words) const
{
    const std::string before = disk.Get("p.qnp");
    const auto date = MadeOld(project);
    EXPECT_THAT(Done(words), testing::EndsWith("Projektet är oförändrat.\n"));
    EXPECT_EQ(DoneAsObject(words)["changed"], false);
    EXPECT_TRUE(disk.Get("p.qnp") == before); // a long list is not printed
    EXPECT_EQ(fs::last_write_time(project), date);
}

Json EditWorkshop::Show() const
{
    return ObjectOf(Quillonc({"show", project, "--json"}));
}

std::vector<std::string> EditWorkshop::Rows(std::size_t column) const
{
    std::vector<std::string> texts;
    const Json shown = Show();
    for (const Json& row : shown["FileList"])
        texts.push_back(row[column]);
    return texts;
}

} // namespace quillon::test
