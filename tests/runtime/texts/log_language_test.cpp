// A setup in English: nothing that its reader sees is in another language, neither in a box nor in
// the log, and the uninstaller goes on in the same one.
#include "runtime/support/setup_fixture.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillon {

using test::BoxKind;
using test::ScriptedAsk;
using testing::HasSubstr;

namespace {

using test::kMain;

LanguageTexts English()
{
    std::ifstream file(std::filesystem::path(QUILLON_TEST_DATA) / ".." / "resources" / "Language" /
                           "ENGLISH.LNG",
                       std::ios::binary);
    return LanguageTexts(std::string(std::istreambuf_iterator<char>(file), {}));
}

} // namespace

class LogLanguageTest : public test::SetupFixture {
protected:
    LogLanguageTest()
    {
        package.texts = English();
        AddFile("prog.exe", "%DESTDIR", "program");
    }

    /// The log without the date and time before each line.
    std::vector<Text> Lines() const
    {
        std::vector<Text> lines = SplitLines(Log());
        for (Text& line : lines)
            line = line.substr(std::min<std::size_t>(line.size(), 21));
        return lines;
    }
};

TEST_F(LogLanguageTest, TellsOfAnInstallationInTheLanguageOfThePackage)
{
    project.Lists.AutoexecBat = "x";
    project.Lists.Registry = "x\r\nHKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Namn=\"x\"\r\n"
                             "HKEY_DYN_DATA\\x";
    project.Lists.INIFiles = "; note\r\n-- A.INI --\r\n[S]\r\nN=1";
    project.Lists.RegisterFileList = "%DESTDIR\\none.dll";
    AddFile("old.txt", "%DESTDIR", "old", "N");
    memory.files.Put(kMain + "\\old.txt", "kept");
    ASSERT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_THAT(
        Lines(),
        testing::IsSupersetOf(
            {"Installing Exempel from D:\\Paket",
             "Skipping the lines for AUTOEXEC.BAT: this version of Windows doesn't read "
             "the file",
             "Skipping the registry line \"x\": the line doesn't begin with a root key of "
             "the registry",
             "Skipping the registry line \"HKEY_DYN_DATA\\x\": HKEY_DYN_DATA can't be "
             "changed",
             "Skipping the INI line \"; note\": a comment is not written to the INI file",
             "Copying C:\\Program\\Exempel\\prog.exe",
             "Skipping C:\\Program\\Exempel\\old.txt: the file already exists and is never "
             "to be replaced",
             "Writing to the registry: HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma :: Namn",
             "Writing to C:\\WINDOWS\\A.INI: [S] N",
             "Skipping the registration of C:\\Program\\Exempel\\none.dll: the file doesn't "
             "exist",
             "Done."}));
    EXPECT_EQ(Log().find_first_of("\xC3\xC5"), Text::npos) << "a letter that English lacks";
}

TEST_F(LogLanguageTest, TellsOfAFailureInTheLanguageOfThePackage)
{
    damagedEntry = 0;
    ScriptedAsk script({{BoxKind::Critical, "Exempel Setup",
                         "The installation files are damaged or incomplete (FILEDATA.DAT is "
                         "damaged). Nothing has been installed. Please obtain the setup files "
                         "again."}});
    ask = &script;
    EXPECT_EQ(Install(""), ExitCode::DamagedPackage);
    EXPECT_THAT(Lines(), testing::Contains(HasSubstr("Ending with code 20001: The installation "
                                                     "files are damaged or incomplete")));
}

TEST_F(LogLanguageTest, IsKeptForTheUninstaller)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kMain + "\\mine.txt", "of the user");
    ASSERT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_THAT(Lines(),
                testing::IsSupersetOf({"Removing C:\\Program\\Exempel\\prog.exe",
                                       "Skipping C:\\Program\\Exempel: the folder is not empty"}));
}

TEST_F(LogLanguageTest, IsRecordedOnceHoweverOftenTheProductIsInstalled)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    ASSERT_EQ(Install(), ExitCode::Done);
    const Text record = *memory.files.nodes.at(LowerCase(kMain + "\\QNXUNIN.LOG")).bytes;
    const std::size_t first = record.find("MESSAGE\tMsg_Done\t");
    ASSERT_NE(first, Text::npos);
    EXPECT_EQ(record.find("MESSAGE\tMsg_Done\t", first + 1), Text::npos);
    EXPECT_EQ(record.find("PRODUCT\t"), record.rfind("PRODUCT\t"));
}

} // namespace quillon
