// quillonc import-vb6, import-vb5 and import-vbnet on a copied system folder and an exported
// registry, as a build server runs them.
#include "edit_workshop.h"

#include "support/linked_program.h"

namespace quillon::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;

class ImportCalls : public EditWorkshop {
protected:
    ImportCalls()
    {
        disk.Put("tool/ImportData.txt", "[Controls]\nGRID32.OCX\n");
        for (const char* const name :
             {"msvbvm60.dll", "msvbvm50.dll", "grid32.ocx", "mfc42.dll", "msvcrt.dll",
              "msadodc.ocx", "msstdfmt.dll", "mscomctl.ocx", "shdocvw.dll"})
            disk.Put(std::string("c/Windows/System32/") + name, "x");
        for (const char* const name :
             {"ASYCFILT.DLL", "COMCAT.DLL", "OLEPRO32.DLL", "OLEAUT32.DLL", "STDOLE2.TLB"}) {
            disk.Put(std::string("c/VB98/Wizards/PDWizard/Redist/") + name, "x");
            disk.Put(std::string("c/VB5/setupkit/kitfil32/sys32/") + name, "x");
        }
        disk.Put("c/VB5/setupkit/kitfil32/sys32/CTL3D32.DLL", "x");
        disk.Put("c/VB98/Wizards/PDWizard/Redist/MDAC_TYP.EXE", "package");
        disk.Put("registry.reg",
                 "REGEDIT4\r\n\r\n"
                 "[HKEY_CLASSES_ROOT\\VisualBasic.Project\\shell\\open\\command]\r\n"
                 "@=\"\\\"C:\\\\VB98\\\\VB6.EXE\\\" \\\"%1\\\"\"\r\n\r\n"
                 "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Visual Basic\\5.0]\r\n"
                 "\"InstallDir\"=\"C:\\\\VB5\"\r\n\r\n"
                 "[HKEY_CLASSES_ROOT\\TypeLib\\{831FDD16}\\2.0\\0\\win32]\r\n"
                 "@=\"C:\\\\WINDOWS\\\\SYSTEM32\\\\MSCOMCTL.OCX\"\r\n");
        environment["QUILLON_REGISTRY"] = disk.Path("registry.reg");
        disk.Put("src/Kund/Kund.vbp", "Type=Exe\r\nObject={1}#1.0#0; GRID32.OCX\r\n");
        disk.Put("src/Kund/Kund.exe", "MZ");
    }

    std::vector<std::string> Vb6(std::vector<std::string> more = {}) const
    {
        std::vector<std::string> words{"import-vb6", "--vbp", Src("Kund.vbp"), "--exe",
                                       Src("Kund.exe")};
        words.insert(words.end(), more.begin(), more.end());
        return words;
    }
    std::string Src(const std::string& name) const { return disk.Path("src/Kund/" + name); }
};

TEST_F(ImportCalls, ImportAVb6Project)
{
    const std::string said =
        Done(Vb6({"--to", "%DESTDIR\\Bin", "--icon", "Kundregister", "--icon-on", "desktop"}));
    EXPECT_THAT(said, HasSubstr("Grid32.ocx -> %SYSDIR\n"));
    EXPECT_THAT(said, HasSubstr("Adderade filer: 10, ej adderade: 0\n"));
    EXPECT_THAT(Rows(Filename), ElementsAre("ASYCFILT.dll", "COMCAT.dll", "Grid32.ocx", "Kund.exe",
                                            "Mfc42.dll", "MSVBVM60.dll", "Msvcrt.dll",
                                            "OLEAUT32.dll", "OLEPRO32.dll", "STDOLE2.tlb"));
    const Json row = Show()["FileList"][3];
    EXPECT_EQ(row[Destination], "%DESTDIR\\Bin");
    EXPECT_EQ(row[IconMarker], "IkonD");
    EXPECT_EQ(row[IconDesc], "Kundregister");
    EXPECT_EQ(row[IconDocReader], "<Ingen>");
}

TEST_F(ImportCalls, TellTheirRowsAndWhatTheyMissedAsAnObject)
{
    disk.Put("src/Kund/Kund.vbp", "Object={1}; shdocvw.dll\r\nObject={2}; nej.ocx\r\n");
    const ProgramRun run = Edit(Vb6({"--json"}));
    EXPECT_EQ(run.exitCode, 1);
    const Json object = ObjectOf(run);
    EXPECT_THAT(object["error"].get<std::string>(),
                HasSubstr("Filen 'nej.ocx' existerar inte i systemkatalogen!"));
    EXPECT_EQ(object["exitCode"], 1);
    EXPECT_EQ(object["missed"][0]["file"], "shdocvw.dll");
    EXPECT_EQ(object["missed"][0]["reason"], "hör till Windows och läggs aldrig in");
    EXPECT_EQ(object["missed"][1]["file"], "nej.ocx");
    EXPECT_EQ(object["missed"][1]["reason"], "finns inte i systemkatalogen");
    EXPECT_EQ(object["missed"][0]["kind"], "windows");
    EXPECT_EQ(object["missed"][1]["kind"], "missing");
    EXPECT_FALSE(object["added"].empty());
    for (const Json& row : object["added"])
        EXPECT_NE(row["name"], "nej.ocx");
    EXPECT_TRUE(Rows(Filename).empty()) << "nothing is saved";
    const Json rest = DoneAsObject(Vb6({"--continue"}));
    EXPECT_EQ(rest["changed"], true);
    EXPECT_EQ(rest["dryRun"], false);
    EXPECT_EQ(rest["missed"].size(), 2U);
    EXPECT_THAT(Rows(Filename), Contains("MSVBVM60.dll"));
    EXPECT_THAT(ObjectOf(Edit(Vb6({"--json"})))["error"].get<std::string>(),
                HasSubstr("'nej.ocx' existerar inte"))
        << "the next import tries again";
    disk.Put("c/Windows/System32/nej.ocx", "x");
    const Json found = DoneAsObject(Vb6());
    EXPECT_THAT(found["added"].dump(), HasSubstr("nej.ocx"));
    const auto names = Rows(Filename);
    EXPECT_EQ(std::ranges::count(names, "nej.ocx"), 1);
}

TEST_F(ImportCalls, EndWith1WhereAControlWithAFolderIsMissed)
{
    disk.Put("src/Kund/Kund.vbp", "Object={2}; ..\\Bin\\Own.ocx\r\n");
    const ProgramRun run = Edit(Vb6({"--json"}));
    EXPECT_EQ(run.exitCode, 1);
    const Json missed = ObjectOf(run)["missed"];
    EXPECT_EQ(missed[0]["file"], "..\\Bin\\Own.ocx");
    EXPECT_EQ(missed[0]["reason"], "ligger utanför systemkatalogen");
    EXPECT_EQ(missed[0]["kind"], "outside");
    EXPECT_TRUE(Rows(Filename).empty());
    EXPECT_EQ(DoneAsObject(Vb6({"--continue"}))["missed"].size(), 1U);
}

TEST_F(ImportCalls, OnlyShowWhatADryRunWouldAdd)
{
    const std::string before = disk.Get("p.qnp");
    EXPECT_THAT(Done(Vb6({"--dry-run", "--mda"})), HasSubstr("Inget är sparat.\n"));
    const Json object = DoneAsObject(Vb6({"--dry-run", "--mda"}));
    EXPECT_EQ(object["dryRun"], true);
    EXPECT_EQ(object["added"].size(), 11U);
    EXPECT_EQ(disk.Get("p.qnp"), before);
    EXPECT_THAT(Names("tool"), Not(Contains("Temp")));
}

TEST_F(ImportCalls, AddThePackageOfDataAccess)
{
    const Json object = DoneAsObject(Vb6({"--mda", "--mda-visible", "--mda-ask"}));
    EXPECT_TRUE(object["boxes"].size() == 1) << "the switch is the answer to the question";
    EXPECT_THAT(Rows(Filename), Contains("MDAC_TYP.ZIP"));
    const Json databases = Show()["Databases"];
    EXPECT_EQ(databases["MDAHiddenInstall"], 0);
    EXPECT_EQ(databases["MDAAskUser"], -1);
}

TEST_F(ImportCalls, LetASwitchOverruleTheScan)
{
    disk.Put("src/Kund/Kund.vbp", "Object={1}; MSADODC.OCX\r\n");
    Done(Vb6());
    EXPECT_THAT(Rows(Filename), Contains("Msstdfmt.dll"));
    ExpectRefused(Vb6({"--ado", "--no-ado"}), 2, "--ado och --no-ado utesluter varandra");
    ExpectRefused(Vb6({"--rdo", "--no-rdo"}), 2, "--rdo och --no-rdo utesluter varandra");
}

TEST_F(ImportCalls, AddTheDataControlsThatSwitchesAskFor)
{
    disk.Put("c/Windows/System32/msrdc20.ocx", "x");
    disk.Put("c/Windows/System32/rdocurs.dll", "x");
    Done(Vb6({"--no-ado", "--no-rdo"}));
    EXPECT_THAT(Rows(Filename), Not(Contains("Msadodc.ocx")));
    EXPECT_THAT(Rows(Filename), Not(Contains("Rdocurs.dll")));
    SaveProjectOf({});
    Done(Vb6({"--ado", "--rdo"}));
    EXPECT_THAT(Rows(Filename),
                IsSupersetOf({"Msadodc.ocx", "Msstdfmt.dll", "Msrdc20.ocx", "Rdocurs.dll"}));
}

// The project's own control and what comes with it stay; the boxes of the scan are unticked.
TEST_F(ImportCalls, AddNoMoreForADataControlThanTheProjectNames)
{
    disk.Put("src/Kund/Kund.vbp", "Object={1}; MSADODC.OCX\r\n");
    for (const char* const off : {"--no-ado", "--no-rdo"}) {
        SaveProjectOf({});
        const Json object = DoneAsObject(Vb6({off}));
        EXPECT_TRUE(object["missed"].empty());
        const auto names = Rows(Filename);
        EXPECT_EQ(std::ranges::count(names, "Msadodc.ocx"), 1) << off;
        EXPECT_EQ(std::ranges::count(names, "Msstdfmt.dll"), 1) << off;
    }
}

TEST_F(ImportCalls, TellWhatToSetWhereTheMachineHasNoVisualBasic)
{
    environment["QUILLON_REGISTRY"] = "";
    ExpectRefused(Vb6(), 1,
                  "Registry anger ingen katalog för Visual Basic. Ange den med --vb-folder, eller "
                  "låt QUILLON_REGISTRY namnge en .reg-fil");
    ExpectRefused(Vb6({"--vb-folder", "C:\\Nej"}), 1, "Ange den med --vb-folder.");
    EXPECT_THAT(Done(Vb6({"--vb-folder", disk.Path("c/VB98")})), HasSubstr("ASYCFILT.dll"));
}

TEST_F(ImportCalls, TellWhatToSetWhereTheMachineHasNoSystemFolder)
{
    disk.Put("empty/VB98/VB6.EXE", "x");
    environment["QUILLON_DRIVE_C"] = disk.Path("empty");
    const ProgramRun run = Edit(Vb6());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_THAT(run.err, HasSubstr("låt QUILLON_DRIVE_C ange en katalog där den finns"));
    disk.Put("src/Kund/Kund.vbproj", "<References>\r\nGuid = \"{831FDD16}\"\r\n"
                                     "VersionMajor = \"2\"\r\nVersionMinor = \"0\"\r\n");
    ExpectRefused({"import-vbnet", "--vbp", Src("Kund.vbproj"), "--exe", Src("Kund.exe")}, 1,
                  "så projektets COM-komponenter kan ej hämtas");
}

TEST_F(ImportCalls, ImportAVb5Project)
{
    Done({"import-vb5", "--vbp", Src("Kund.vbp"), "--exe", Src("Kund.exe"), "--mfc"});
    EXPECT_THAT(Rows(Filename),
                ElementsAre("AsycFilt.dll", "ComCat.dll", "Ctl3d32.dll", "Grid32.ocx", "Kund.exe",
                            "Mfc42.dll", "MSVBVM50.dll", "Msvcrt.dll", "OleAut32.dll",
                            "OlePro32.dll", "StdOle2.tlb"));
}

TEST_F(ImportCalls, ImportAVbNetProject)
{
    disk.Put("src/Kund/bin/Kund.exe", "MZ");
    disk.Put("src/Kund/bin/Lib.dll", "MZ");
    disk.Put("src/Kund/Kund.vbproj",
             "<References>\r\nGuid = \"{831FDD16}\"\r\nVersionMajor = \"2\"\r\n"
             "VersionMinor = \"0\"\r\nGuid = \"{0}\"\r\n\"1\"\r\n\"0\"\r\n");
    const std::vector<std::string> words{
        "import-vbnet", "--vbp", Src("Kund.vbproj"), "--exe", Src("bin/Kund.exe"),
        "--net",        "1.1",   "--net-stop"};
    EXPECT_THAT(Done(words), HasSubstr("Ej adderad: {0} (saknas i registry)\n"));
    EXPECT_THAT(Rows(Filename), ElementsAre("Kund.exe", "Lib.dll", "Mscomctl.ocx"));
    const Json net = Show()["NET"];
    EXPECT_EQ(net["NET_TestIfInstalled"], -1);
    EXPECT_EQ(net["NET_ver11"], -1);
    EXPECT_EQ(net["NET_ver10"], 0);
    EXPECT_EQ(net["NET_StopIfNoNET"], -1);
    EXPECT_EQ(net["NET_WarnIfNoNET"], 0);
    ExpectUntouched({"import-vbnet", "--vbp", Src("Kund.vbproj"), "--exe", Src("bin/Kund.exe")});
}

TEST_F(ImportCalls, NameTheCallThatANewerProjectNeeds)
{
    for (const std::string name : {"Kund.vbproj", "Kund.csproj"}) {
        disk.Put("src/Kund/" + name, "<Project Sdk=\"Microsoft.NET.Sdk\">\n");
        ExpectRefused({"import-vbnet", "--vbp", Src(name), "--exe", Src("Kund.exe")}, 1,
                      "quillonc import-folder");
    }
}

TEST_F(ImportCalls, ImportTheFolderOfABuild)
{
    disk.Put("out/Kund/Kund.exe",
             MakeLinkedProgram({.imports = {"KERNEL32.dll", "nej.dll"},
                                .clrVersion = "v4.0.30319",
                                .targetFramework = ".NETFramework,Version=v4.8"}));
    disk.Put("out/Kund/x64.dll", MakeLinkedProgram({.is64Bit = true, .isLibrary = true}));
    disk.Put("out/Kund/sv/text.txt", "x");
    disk.Put("out/Kund/Kund.pdb", "x");
    disk.Put("tool/ImportData.txt", "[Windows]\nkernel32.dll\n");
    const std::vector<std::string> words{"import-folder", disk.Path("out/Kund"), "--icon", "Kund"};
    const std::string said = Done(words);
    EXPECT_THAT(said, HasSubstr("Program: Kund.exe\nProgrammet är för valfri processor, men "
                                "'x64.dll' är för 64 bitar.\n"
                                "Programmet behöver .NET Framework 4.8.\n"
                                "Saknas: nej.dll (behövs av Kund.exe)\n"));
    EXPECT_THAT(Rows(Filename), ElementsAre("Kund.exe", "text.txt", "x64.dll"));
    EXPECT_THAT(Rows(Destination), ElementsAre("%DESTDIR", "%DESTDIR\\sv", "%DESTDIR"));
    EXPECT_EQ(Show()["NET"]["NET_TestIfInstalled"], -1);

    SaveProjectOf({});
    const Json object = DoneAsObject({"import-folder", disk.Path("out/Kund"), "--no-net-test"});
    EXPECT_EQ(object["program"], "Kund.exe");
    EXPECT_EQ(object["machine"], "any");
    EXPECT_EQ(object["onlyFor"], "x64");
    EXPECT_EQ(object["dotNet"]["kind"], "framework");
    EXPECT_EQ(object["dotNet"]["version"], "4.8");
    EXPECT_EQ(object["missing"][0]["name"], "nej.dll");
    EXPECT_EQ(object["missing"][0]["neededBy"][0], "Kund.exe");
    EXPECT_EQ(object["missed"][0]["file"], "Kund.pdb");
    EXPECT_EQ(Show()["NET"]["NET_TestIfInstalled"], 0);

    ExpectRefused({"import-folder", disk.Path("out/Kund"), "--strict"}, 1,
                  "Biblioteket 'nej.dll' saknas; det behövs av 'Kund.exe'.");
    disk.Put("out/Mixed/Kund.exe", MakeLinkedProgram({.clrVersion = "v4.0.30319"}));
    disk.Put("out/Mixed/a.dll", MakeLinkedProgram({.is64Bit = true, .isLibrary = true}));
    disk.Put("out/Mixed/b.dll", MakeLinkedProgram({.isLibrary = true}));
    ExpectRefused({"import-folder", disk.Path("out/Mixed"), "--strict"}, 1,
                  "'a.dll' är för 64 bitar, men 'b.dll' är för 32 bitar.");
    disk.Put("out/Mixed/Kund.exe", MakeLinkedProgram({}));
    ExpectRefused({"import-folder", disk.Path("out/Mixed"), "--strict"}, 1,
                  "'a.dll' är för 64 bitar, men programmet är för 32 bitar.");
    ExpectRefused({"import-folder", disk.Path("out/Kund"), "--exe", "x.exe"}, 1,
                  "Katalogen har inget program 'x.exe'.");
    ExpectRefused({"import-folder", disk.Path("out/nej")}, 3, "finns inte");
    ExpectRefused({"import-folder", disk.Path("src/Other")}, 1, "har inget program");
}

TEST_F(ImportCalls, RefuseWhatIsMissingOrWrong)
{
    ExpectRefused({"import-vb6", "--vbp", Src("Kund.vbp")}, 2,
                  "Kommandot import-vb6 saknar växeln --exe.");
    ExpectRefused({"import-vb5", "--exe", Src("Kund.exe")}, 2,
                  "Kommandot import-vb5 saknar växeln --vbp.");
    ExpectRefused({"import-vb6", "--vbp", Src("nej.vbp"), "--exe", Src("Kund.exe")}, 3,
                  "finns inte");
    ExpectRefused(
        {"import-vbnet", "--vbp", Src("Kund.vbp"), "--exe", Src("Kund.exe"), "--net-stop"}, 2,
        "Växeln --net-stop hör ihop med --net.");
    const ProgramRun run = Edit(Vb6({"--to", "a;b"}));
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Rows(Filename).empty());
}

} // namespace
} // namespace quillon::test
