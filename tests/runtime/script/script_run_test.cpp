// What the scripts of a package do to the machine, and how it comes back.
#include "platform/run_error.h"
#include "runtime/support/setup_fixture.h"

#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ScriptTestOfSetup : public SetupFixture {
protected:
    ScriptTestOfSetup() { AddFile("prog.exe", "%DESTDIR", "program"); }

    ExitCode RunBefore(const Text& script)
    {
        project.Lists.RunScriptBefore = script;
        return Install();
    }
    ExitCode RunAfter(const Text& script)
    {
        project.Lists.RunScriptAfter = script;
        return Install();
    }
    /// A script that ends the setup and leaves nothing.
    void ExpectFailure(const Text& script, const Text& reason)
    {
        const MachineState before = State();
        EXPECT_EQ(RunAfter(script), ExitCode::Failed) << script;
        EXPECT_THAT(Log(), HasSubstr("misslyckades och alla ändringar har ångrats (fel i skriptet "
                                     "efter installationen, rad " +
                                     reason + ")"))
            << script;
        EXPECT_EQ(State().files, before.files) << script;
        EXPECT_EQ(State().registry, before.registry) << script;
    }
    /// The product is installed and removed again; the machine is as it was before.
    void ExpectRemoved(const MachineState& before)
    {
        EXPECT_EQ(UninstallProduct(), ExitCode::Done) << Log();
        EXPECT_EQ(State().files, before.files);
        EXPECT_EQ(State().registry, before.registry);
    }
};

TEST_F(ScriptTestOfSetup, RunsBeforeAndAfterTheFilesAreCopied)
{
    project.Lists.RunScriptBefore = "IF FILE %DESTDIR\\prog.exe\r\nEXIT 9\r\nEND";
    project.Lists.RunScriptAfter = "IF NOT FILE %DESTDIR\\prog.exe\r\nEXIT 9\r\nEND";
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_THAT(Log(), HasSubstr("Kör skriptet före installationen"));
    EXPECT_THAT(Log(), HasSubstr("Kör skriptet efter installationen"));
}

TEST_F(ScriptTestOfSetup, RefusesAFaultyScriptBeforeAnythingIsChanged)
{
    const MachineState before = State();
    EXPECT_EQ(RunBefore("LOG a\r\nKOPIERA a b"), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("fel i skriptet före installationen, rad 2: okänt kommando "
                                 "'KOPIERA'"));
    EXPECT_THAT(Log(), Not(HasSubstr("ångras")));
    EXPECT_EQ(State(), before);
    project.Lists.RunScriptBefore.clear();
    EXPECT_EQ(RunAfter("IF FILE a"), ExitCode::DamagedPackage);
    EXPECT_THAT(Log(), HasSubstr("fel i skriptet efter installationen, rad 1: IF utan END"));
    EXPECT_EQ(State(), before);
}

TEST_F(ScriptTestOfSetup, CopiesAFileAndRemovesItWithTheProduct)
{
    const MachineState before = State();
    EXPECT_EQ(RunAfter("COPY %DESTDIR\\prog.exe \"%DESTDIR\\Min kopia\\kopia.exe\"\r\n"
                       "MAKEFOLDER %DESTDIR\\Ny/Under\r\n"
                       "COPY %DESTDIR\\prog.exe %DESTDIR\\Ny"),
              ExitCode::Done)
        << Log();
    EXPECT_EQ(memory.files.Get(kMain + "\\Min kopia\\kopia.exe"), "program");
    EXPECT_EQ(memory.files.Get(kMain + "\\Ny\\prog.exe"), "program");
    EXPECT_TRUE(memory.files.DirExists(kMain + "\\Ny\\Under"));
    EXPECT_THAT(Log(), HasSubstr("Kopierar " + kMain + "\\Min kopia\\kopia.exe"));
    ExpectRemoved(before);
}

TEST_F(ScriptTestOfSetup, KeepsAFileOfTheUserThatItCopiesOver)
{
    memory.files.Put("E:\\data.txt", "användarens");
    const MachineState before = State();
    EXPECT_EQ(RunAfter("COPY %DESTDIR\\prog.exe E:\\data.txt"), ExitCode::Done) << Log();
    EXPECT_EQ(memory.files.Get("E:\\data.txt"), "program");
    EXPECT_EQ(memory.files.Get("E:\\data.txt.bak"), "användarens");
    // A second installation does not take its own file for the user's.
    EXPECT_EQ(Install(), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.FileExists("E:\\data.txt.bak2"));
    ExpectRemoved(before);
}

TEST_F(ScriptTestOfSetup, DeletesAndRenamesFiles)
{
    memory.files.Put("E:\\gammal.txt", "g");
    memory.files.Put("E:\\a.txt", "användarens");
    EXPECT_EQ(RunBefore("DELETE E:\\gammal.txt\r\nDELETE \"E:\\finns inte.txt\"\r\nRENAME "
                        "E:\\a.txt E:\\Ny\\b.txt"),
              ExitCode::Done)
        << Log();
    EXPECT_FALSE(memory.files.FileExists("E:\\gammal.txt"));
    EXPECT_FALSE(memory.files.FileExists("E:\\a.txt"));
    EXPECT_EQ(memory.files.Get("E:\\Ny\\b.txt"), "användarens");
    EXPECT_THAT(Log(), HasSubstr("Tar bort E:\\gammal.txt"));
    EXPECT_THAT(Log(), HasSubstr("Hoppar över E:\\finns inte.txt: filen finns inte"));
    EXPECT_THAT(Log(), HasSubstr("Byter namn på E:\\a.txt till E:\\Ny\\b.txt"));
    // What was the user's stays the user's.
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("E:\\Ny\\b.txt"), "användarens");
}

TEST_F(ScriptTestOfSetup, RemovesAProductsFileUnderItsNewName)
{
    const MachineState before = State();
    EXPECT_EQ(RunAfter("RENAME %DESTDIR\\prog.exe %DESTDIR\\annat.exe"), ExitCode::Done) << Log();
    EXPECT_FALSE(memory.files.FileExists(kMain + "\\prog.exe"));
    ExpectRemoved(before);
}

TEST_F(ScriptTestOfSetup, RemovesAFolderThatIsEmptyInTheEnd)
{
    memory.files.Put("E:\\Gammal\\a.txt", "g");
    memory.files.Put("E:\\Full\\a.txt", "g");
    EXPECT_EQ(RunBefore("DELETE E:\\Gammal\\a.txt\r\nREMOVEFOLDER E:\\Gammal\r\n"
                        "REMOVEFOLDER E:\\Full\r\nREMOVEFOLDER E:\\Ingen"),
              ExitCode::Done)
        << Log();
    EXPECT_FALSE(memory.files.DirExists("E:\\Gammal"));
    EXPECT_TRUE(memory.files.FileExists("E:\\Full\\a.txt"));
    EXPECT_THAT(Log(), HasSubstr("Tar bort mappen E:\\Gammal"));
    EXPECT_THAT(Log(), HasSubstr("Hoppar över E:\\Full: mappen är inte tom"));
}

TEST_F(ScriptTestOfSetup, WritesIniAndRegistryValuesAndTakesThemBack)
{
    memory.files.Put("C:\\WINDOWS\\firma.ini", "[A]\r\nb=förr\r\n");
    const RegistryKey key{RegistryRoot::CurrentUser, "Software\\Firma\\Exempel"};
    const MachineState before = State();
    EXPECT_EQ(RunAfter("INI %WINDIR\\firma.ini A b %DESTDIR\r\n"
                       "REGISTRY HKEY_CURRENT_USER\\Software\\Firma\\%PROJECTNAME :: "
                       "Mapp=\"%DESTDIR\"\r\n"
                       "REGISTRY HKEY_CURRENT_USER\\Software\\Firma\\%PROJECTNAME :: Antal=7"),
              ExitCode::Done)
        << Log();
    EXPECT_EQ(memory.files.Get("C:\\WINDOWS\\firma.ini"), "[A]\r\nb=" + kMain + "\r\n");
    EXPECT_EQ(target.TextAt(key, "Mapp"), kMain);
    EXPECT_EQ(target.ReadValue(key, "Antal"), NumberData(7));
    ExpectRemoved(before);
}

TEST_F(ScriptTestOfSetup, DeletesRegistryValuesButNoKeyOfTheSystem)
{
    const RegistryKey key{RegistryRoot::CurrentUser, "Software\\Firma"};
    target.MakeKey(key);
    target.WriteValue(key, "Gammal", TextData("x"));
    EXPECT_EQ(RunBefore("REGISTRY DELETE=HKEY_CURRENT_USER\\Software\\Firma :: Gammal"),
              ExitCode::Done);
    EXPECT_EQ(target.TextAt(key, "Gammal"), "<none>");
    project.Lists.RunScriptBefore.clear();
    // What a variable makes of the line is tested too.
    ExpectFailure("SET %TOM \"\"\r\nREGISTRY DELETE=HKEY_LOCAL_MACHINE\\SOFTWARE\\%TOM",
                  "2: nyckeln hör till systemet och får inte tas bort");
    ExpectFailure("REGISTRY HKEY_DYN_DATA\\A :: b=1", "1: HKEY_DYN_DATA kan inte ändras");
}

TEST_F(ScriptTestOfSetup, GoesByFilesFoldersRegistryAndVariables)
{
    memory.files.Put("E:\\Mapp\\a.txt", "");
    target.MakeKey({RegistryRoot::CurrentUser, "Software\\Firma"});
    target.WriteValue({RegistryRoot::CurrentUser, "Software\\Firma"}, "A", TextData("x"));
    const std::pair<const char*, bool> conditions[] = {
        {"FILE E:\\Mapp\\a.txt", true},
        {"FILE E:\\Mapp", false},
        {"NOT FILE E:\\b.txt", true},
        {"FOLDER E:\\Mapp", true},
        {"FOLDER E:\\Ingen", false},
        {"REGISTRY HKCU\\Software\\Firma", true},
        {"REGISTRY HKCU\\Software\\Annan", false},
        {"REGISTRY \"HKCU\\Software\\Firma :: a\"", true},
        {"NOT REGISTRY \"HKCU\\Software\\Firma :: B\"", true},
        {"%PROJECTNAME = exempel", true},
        {"%PROJECTNAME <> Exempel", false},
        {"%EGEN = \"ett två\"", true},
        {"%EXITCODE = 0", true},
        {"YES \"Vill du?\"", false}, // no user to ask
    };
    Text script = "SET %EGEN \"ett två\"\r\n";
    for (std::size_t i = 0; i < std::size(conditions); ++i)
        script += "IF " + Text(conditions[i].first) + "\r\nLOG \"rad " + NumberText(int(i)) +
                  " ja\"\r\nELSE\r\nLOG \"rad " + NumberText(int(i)) + " nej\"\r\nEND\r\n";
    EXPECT_EQ(RunAfter(script), ExitCode::Done) << Log();
    for (std::size_t i = 0; i < std::size(conditions); ++i)
        EXPECT_THAT(Log(), HasSubstr("  rad " + NumberText(int(i)) +
                                     (conditions[i].second ? " ja\r\n" : " nej\r\n")))
            << conditions[i].first;
}

TEST_F(ScriptTestOfSetup, AsksAndTellsTheUser)
{
    ScriptedAsk user({{BoxKind::Inform, "Installation av Exempel", "Till C:\\Program\\Exempel"},
                      {BoxKind::YesNo, "Installation av Exempel", "Behålla?", Answer::Yes},
                      {BoxKind::YesNo, "Installation av Exempel", "Säkert?", Answer::No}});
    ask = &user;
    project.Lists.RunScriptBefore =
        "MESSAGE \"Till %DESTDIR\"\r\nIF YES \"Behålla?\"\r\nLOG ett\r\nEND\r\n"
        "IF YES \"Säkert?\"\r\nLOG två\r\nEND";
    EXPECT_EQ(Install(""), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Meddelande: Till C:\\Program\\Exempel"));
    EXPECT_THAT(Log(), HasSubstr("  ett\r\n"));
    EXPECT_THAT(Log(), Not(HasSubstr("  två\r\n")));
}

TEST_F(ScriptTestOfSetup, RunsAProgramAndGoesByItsCode)
{
    target.programCodes[kMain + "\\prog.exe"] = 7;
    ScriptedAsk user;
    ask = &user;
    project.Lists.RunScriptAfter = "RUN %DESTDIR\\prog.exe \"/x \"\"%PROJECTNAME\"\"\"\r\n"
                                   "RUNHIDDEN %DESTDIR\\prog.exe\r\n"
                                   "IF %EXITCODE = 7\r\nLOG sju\r\nEND";
    EXPECT_EQ(Install(""), ExitCode::Done) << Log();
    EXPECT_THAT(target.programsRun,
                ElementsAre(kMain + "\\prog.exe /x \"Exempel\"", kMain + "\\prog.exe (hidden)"));
    EXPECT_THAT(Log(), HasSubstr(kMain + "\\prog.exe slutade med kod 7"));
    EXPECT_THAT(Log(), HasSubstr("  sju\r\n"));
}

TEST_F(ScriptTestOfSetup, ShowsNoProgramWhereNothingIsShown)
{
    EXPECT_EQ(RunAfter("RUN %DESTDIR\\prog.exe"), ExitCode::Done);
    EXPECT_THAT(target.programsRun, ElementsAre(kMain + "\\prog.exe (hidden)"));
}

TEST_F(ScriptTestOfSetup, RunsBesideThePackageOnlyWhatBelongsToIt)
{
    memory.files.Put("D:\\Paket\\främmande.exe", "x");
    ExpectFailure("RUN D:\\Paket\\främmande.exe",
                  "1: 'D:\\Paket\\främmande.exe' hör inte till paketet");
    EXPECT_THAT(target.programsRun, IsEmpty());
}

TEST_F(ScriptTestOfSetup, EndsTheScriptAtExit)
{
    EXPECT_EQ(RunAfter("LOG före\r\nEXIT\r\nLOG efter"), ExitCode::Done);
    EXPECT_THAT(Log(), HasSubstr("Skriptet slutar på rad 2"));
    EXPECT_THAT(Log(), Not(HasSubstr("  efter\r\n")));
}

TEST_F(ScriptTestOfSetup, EndsTheSetupWithTheScriptsOwnCodeAndText)
{
    const MachineState before = State();
    ScriptedAsk user(
        {{BoxKind::Critical, "Installation av Exempel", "Exempel behöver en dongel."}});
    ask = &user;
    project.Lists.RunScriptAfter = "EXIT 4711 \"%PROJECTNAME behöver en dongel.\"";
    EXPECT_EQ(Install(""), ExitCode(4711));
    EXPECT_THAT(Log(), HasSubstr("Avslutar med kod 4711: Exempel behöver en dongel."));
    EXPECT_EQ(State(), before);
    // Without a text nothing is shown.
    project.Lists.RunScriptAfter = "EXIT 12";
    EXPECT_EQ(Install(""), ExitCode(12));
}

TEST_F(ScriptTestOfSetup, FailsAtTheFirstCommandThatCannotBeDone)
{
    memory.files.Put("E:\\a.txt", "a");
    memory.files.Put("E:\\b.txt", "b");
    ExpectFailure("COPY %DESTDIR\\saknas.txt E:\\x.txt",
                  "1: filen '" + kMain + "\\saknas.txt' finns inte");
    ExpectFailure("DELETE E:\\a.txt\r\nRENAME E:\\b.txt %DESTDIR\\prog.exe",
                  "2: '" + kMain + "\\prog.exe' finns redan");
    ExpectFailure("RUN E:\\saknas.exe", "1: filen 'E:\\saknas.exe' finns inte");
}

TEST_F(ScriptTestOfSetup, TakesWholePlainPathsAlone)
{
    for (const Text path : {"a.txt", "\\a.txt", "C:a.txt", "E:\\..\\a.txt", "E:\\x\\..\\a.txt",
                            "E:\\a.txt:ström", "E:\\con", "E:\\a*.txt", "%OKÄND\\a.txt", ""})
        ExpectFailure("DELETE \"" + path + "\"",
                      "1: '" + path + "' är ingen hel sökväg till en fil eller mapp");
}

TEST_F(ScriptTestOfSetup, LeadsThroughNoLinkThatOthersMayHaveMade)
{
    memory.files.Put("E:\\Delad\\Länk\\a.txt", "a");
    target.links = {"e:\\delad\\länk"};
    for (const Text command :
         {"DELETE E:\\Delad\\Länk\\a.txt", "COPY %DESTDIR\\prog.exe E:\\Delad\\Länk\\Ny\\b.txt",
          "COPY E:\\Delad\\Länk\\a.txt %DESTDIR\\b.txt", "MAKEFOLDER E:\\Delad\\Länk\\Ny",
          "INI E:\\Delad\\Länk\\a.ini A b c", "RUN E:\\Delad\\Länk\\a.txt"})
        ExpectFailure(command, "1: en länk leder till en annan mapp");
    // Where the product itself lies below a link, that is the machine owner's wish.
    target.links = {"c:\\program"};
    EXPECT_EQ(RunAfter("COPY %DESTDIR\\prog.exe %DESTDIR\\b.exe"), ExitCode::Done) << Log();
}

TEST_F(ScriptTestOfSetup, IsUndoneWithTheInstallationWhateverFails)
{
    memory.files.Put("E:\\Gammal\\a.txt", "a");
    memory.files.Put("E:\\Gammal\\b.txt", "b");
    target.MakeKey({RegistryRoot::CurrentUser, "Software\\Firma"});
    project.Lists.RunScriptBefore =
        "DELETE E:\\Gammal\\a.txt\r\nRENAME E:\\Gammal\\b.txt E:\\Gammal\\a.txt\r\n"
        "REMOVEFOLDER E:\\Gammal\r\nINI E:\\ny.ini A b c\r\n"
        "REGISTRY HKCU\\Software\\Firma\\Ny :: a=1\r\nCOPY E:\\Gammal\\a.txt E:\\Ny\\c.txt";
    const MachineState before = State();
    int changes = 0;
    files.beforeChange = [&] { ++changes; };
    EXPECT_EQ(Install(), ExitCode::Done);
    EXPECT_EQ(UninstallProduct(), ExitCode::Done);
    EXPECT_EQ(memory.files.Get("E:\\Gammal\\a.txt"), "b");
    memory.files.Put("E:\\Gammal\\a.txt", "a");
    memory.files.Put("E:\\Gammal\\b.txt", "b");
    ASSERT_EQ(State().registry, before.registry);
    ASSERT_GT(changes, 20);
    // Each change is refused once, and all that was done before it is taken back.
    for (int refused = 1; refused < changes; ++refused) {
        int done = 0;
        files.beforeChange = [&] {
            if (++done == refused)
                throw RunError(ErrorNumber::kDeviceIo, "E:\\");
        };
        if (Install() == ExitCode::Done)
            break;
        files.beforeChange = [] {};
        EXPECT_EQ(State().files, before.files) << refused;
        EXPECT_EQ(State().registry, before.registry) << refused;
    }
}

} // namespace
} // namespace quillon::test
