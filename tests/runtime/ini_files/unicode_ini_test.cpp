// INI files of others in UTF-16, as Windows makes them for programs that ask for it: changed, left
// alone, and given back.
#include "runtime/support/setup_fixture.h"

#include "helpers/ansi_text.h"
#include "helpers/utf16.h"
#include "platform/run_error.h"

namespace quillon {

using testing::HasSubstr;
using testing::Not;

namespace {

const Text kPath = "C:\\WINDOWS\\A.INI";

std::string InUtf16(std::string_view text)
{
    return "\xFF\xFE" + ToUtf16(text);
}

} // namespace

class UnicodeIni : public test::SetupFixture {
protected:
    UnicodeIni()
    {
        AddFile("prog.exe", "%DESTDIR", "program");
        project.Lists.INIFiles = "-- A.INI --\r\n[Ärenden]\r\nx=2\r\nNamn=Åke\r\n[T]\r\nz=4";
    }
};

TEST_F(UnicodeIni, TakesTheValuesOfTheList)
{
    memory.files.Put(kPath, InUtf16("; Юля 😀\r\n[ÄRENDEN]\r\n X = щ\r\n\r\n[U]\r\nå=1\r\n"));
    ASSERT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(
        memory.files.Get(kPath),
        InUtf16("; Юля 😀\r\n[ÄRENDEN]\r\nx=2\r\nNamn=Åke\r\n\r\n[U]\r\nå=1\r\n[T]\r\nz=4\r\n"));
    EXPECT_THAT(Log(), HasSubstr("Skriver till " + kPath + ": [Ärenden] Namn"));
}

TEST_F(UnicodeIni, HoldsLettersThatNoCodePageOfTheToolHas)
{
    memory.files.Put(kPath, InUtf16("[S]\r\n"));
    project.Lists.INIFiles = "-- A.INI --\r\n[S]\r\nKund=%USERNAME";
    EXPECT_EQ(Install("/S /LOADINF=D:\\Paket\\svar.inf"), ExitCode::BadSwitch) << "no such file";
    memory.files.Put("D:\\Paket\\svar.inf", "\xEF\xBB\xBF[Setup]\r\nUserName=Юля\r\n");
    ASSERT_EQ(Install("/S /LOADINF=D:\\Paket\\svar.inf"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get(kPath), InUtf16("[S]\r\nKund=Юля\r\n"));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kPath), InUtf16("[S]\r\n"));
}

TEST_F(UnicodeIni, ComesBackByteForByte)
{
    for (const Text text :
         {"", "x", "[Ärenden]", "[Ärenden]\r\n x = щ 😀 ", "\r\n[ärenden]\n\tX\t=\t\n; slut",
          "[T]\r\nz=Юля\r\n\r\n[Ärenden]\r\nx=1", "[Ärenden]\r\nx=1\r\n[U]\r\n\r\n"}) {
        SCOPED_TRACE(text);
        const std::string before = InUtf16(text);
        for (const int installations : {1, 2}) {
            memory.files.Put(kPath, before);
            for (int i = 0; i < installations; ++i)
                ASSERT_EQ(Install(), ExitCode::Done);
            EXPECT_NE(memory.files.Get(kPath), before);
            EXPECT_EQ(UninstallProduct(), ExitCode::Done);
            EXPECT_EQ(memory.files.Get(kPath), before) << installations;
        }
    }
}

TEST_F(UnicodeIni, ComesBackWhereTheInstallationFails)
{
    const std::string before = InUtf16("[Ärenden]\r\n x = щ ");
    memory.files.Put(kPath, before);
    bool wasChanged = false;
    files.beforeChange = [&] {
        wasChanged =
            wasChanged || (memory.files.FileExists(kPath) && memory.files.Get(kPath) != before);
        if (wasChanged) {
            files.beforeChange = [] {};
            throw RunError(ErrorNumber::kDiskFull, "C:\\");
        }
    };
    EXPECT_EQ(Install(), ExitCode::DiskFull);
    EXPECT_TRUE(wasChanged);
    EXPECT_EQ(memory.files.Get(kPath), before);
}

TEST_F(UnicodeIni, IsLeftAloneWhereItIsNotWhole)
{
    for (const std::string& broken :
         {InUtf16("[T]\r\n") + "x", InUtf16("[T]\r\n") + std::string("\x3D\xD8", 2),
          std::string("\xFE\xFF\0[\0T\0]", 8)}) {
        memory.files.Put(kPath, broken);
        ASSERT_EQ(Install(), ExitCode::Done);
        EXPECT_EQ(memory.files.Get(kPath), broken);
        EXPECT_THAT(Log(), HasSubstr("Hoppar över " + kPath +
                                     ": filen är i en form av Unicode som inte kan ändras"));
        EXPECT_THAT(Log(), Not(HasSubstr("Skriver till " + kPath)));
        EXPECT_EQ(UninstallProduct(), ExitCode::Done);
        EXPECT_EQ(memory.files.Get(kPath), broken);
    }
}

// Another program may have saved the file again in the meantime.
TEST_F(UnicodeIni, IsGivenBackInTheFormThatItHasByThen)
{
    memory.files.Put(kPath, "[\xC4renden]\r\nx=\xE5\r\n");
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kPath, InUtf16(AnsiText::FromBytes(memory.files.Get(kPath))));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kPath), InUtf16("[Ärenden]\r\nx=å\r\n"));

    memory.files.Put(kPath, InUtf16("[T]\r\n"));
    ASSERT_EQ(Install(), ExitCode::Done);
    const std::string broken = memory.files.Get(kPath) + "x";
    memory.files.Put(kPath, broken);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get(kPath), broken);
}

// Made by the product and emptied of its values, it is not kept for its mark.
TEST_F(UnicodeIni, GoesWithTheProductThatMadeIt)
{
    ASSERT_EQ(Install(), ExitCode::Done);
    memory.files.Put(kPath, InUtf16(AnsiText::FromBytes(memory.files.Get(kPath))));
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_FALSE(memory.files.FileExists(kPath));
}

} // namespace quillon
