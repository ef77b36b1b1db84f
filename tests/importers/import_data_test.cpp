#include "importers/import_data.h"

#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sstream>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Fault = ImportData::Fault;

TEST(ImportData, KnowsItsRowsInAnyCase)
{
    ImportData data;
    EXPECT_THAT(data.Add("; what it is\r\n\r\n[Controls]\r\nGrid.ocx\r\n"
                         "[Modules]\nbasA = One.dll\nMAIN.BAS=Two.dll\n"
                         "[Wrappers]\nHelp.vb=Help.dll\n"
                         "[Windows]\nkernel32.dll\napi-ms-win-*\n"),
                IsEmpty());
    EXPECT_TRUE(data.IsMfcControl("GRID.OCX"));
    EXPECT_FALSE(data.IsMfcControl("GRID2.OCX"));
    EXPECT_THAT(data.LibrariesOfModule("BASA", "x.bas"), ElementsAre("One.dll"));
    EXPECT_THAT(data.LibrariesOfModule("basA", "main.bas"), ElementsAre("One.dll", "Two.dll"));
    EXPECT_THAT(data.LibrariesOfModule("basB", "b.bas"), IsEmpty());
    EXPECT_THAT(data.LibrariesOfWrappersIn("RELPATH = \"..\\LIB\\HELP.VB\""),
                ElementsAre("Help.dll"));
    EXPECT_THAT(data.LibrariesOfWrappersIn("RELPATH = \"A.VB\""), IsEmpty());
    EXPECT_TRUE(data.IsPartOfWindows("KERNEL32.dll"));
    EXPECT_TRUE(data.IsPartOfWindows("api-ms-win-crt-heap-l1-1-0.dll"));
    EXPECT_FALSE(data.IsPartOfWindows("kernel33.dll"));
}

TEST(ImportData, TellsDamagedRowsByTheirLinesAndKeepsTheRest)
{
    ImportData data;
    EXPECT_THAT(
        data.Add("lost.ocx\n[Controls]\na\\b.ocx\nGood.ocx\n[Nothing]\nx.ocx\n"
                 "[Modules]\nbasA\n=x.dll\nbasB=\nbasC=c.dll\n[Windows]\n*\n"),
        ElementsAre(Fault{1, "raden hör till ett okänt avsnitt"},
                    Fault{3, "raden är inget filnamn"}, Fault{5, "avsnittet 'Nothing' är okänt"},
                    Fault{6, "raden hör till ett okänt avsnitt"}, Fault{8, "raden saknar '='"},
                    Fault{9, "namnet före eller efter '=' är inget filnamn"},
                    Fault{10, "namnet före eller efter '=' är inget filnamn"},
                    Fault{13, "raden är inget filnamn"}));
    EXPECT_TRUE(data.IsMfcControl("good.ocx"));
    EXPECT_THAT(data.LibrariesOfModule("basC", ""), ElementsAre("c.dll"));
    EXPECT_FALSE(data.IsPartOfWindows("anything.dll"));
}

TEST(ReadImportData, AddsTheUsersOwnRowsToThoseOfTheTool)
{
    MemoryHost machine;
    machine.files.Put("C:\\Quillon\\ImportData.txt", "[Controls]\nL\xE4s.ocx\n");
    machine.files.Put("C:\\Own\\ImportData.txt", "\xEF\xBB\xBF[Controls]\nBra.ocx\nfel?.ocx\n");
    ScriptedAsk ask{{{BoxKind::Warn, "Fel i ImportData.txt",
                      "Filen 'C:\\Own\\ImportData.txt' har rader som ej kan användas. De är "
                      "överhoppade.\r\nRad 3: raden är inget filnamn."}}};
    const ImportData data = ReadImportData(machine.files, "C:\\Quillon", "C:\\Own", ask);
    EXPECT_TRUE(data.IsMfcControl("LÄS.OCX"));
    EXPECT_TRUE(data.IsMfcControl("bra.ocx"));
}

TEST(ReadImportData, TellsThatTheTableIsMissing)
{
    MemoryHost machine;
    machine.files.PutFolder("C:\\Quillon");
    ScriptedAsk ask{{{BoxKind::Warn, "Fel i ImportData.txt",
                      "Filen 'C:\\Quillon\\ImportData.txt' finns inte."}}};
    EXPECT_FALSE(
        ReadImportData(machine.files, "C:\\Quillon", "C:\\Quillon", ask).IsMfcControl("a.ocx"));
}

TEST(ReadImportData, ShowsTenFaultsAtMost)
{
    MemoryHost machine;
    std::string bytes = "[Modules]\n";
    for (int i = 0; i < 50; ++i)
        bytes += "bad\n";
    machine.files.Put("C:\\Quillon\\ImportData.txt", bytes);
    ScriptedAsk ask{{{BoxKind::Warn, "Fel i ImportData.txt"}}};
    ReadImportData(machine.files, "C:\\Quillon", "", ask);
    EXPECT_THAT(ask.shown[0].text, testing::EndsWith("\r\nRad 11: raden saknar '='.\r\n..."));
}

// The table that comes with the tool.
TEST(ImportData, OfTheToolHasNoDamagedRows)
{
    std::ifstream file(std::string(QUILLON_TEST_DATA) + "/../resources/ImportData.txt",
                       std::ios::binary);
    std::stringstream bytes;
    bytes << file.rdbuf();
    ImportData data;
    EXPECT_THAT(data.Add(bytes.str()), IsEmpty());
    EXPECT_THAT(data.LibrariesOfModule("basSetup1", ""), ElementsAre("VB6STKIT.DLL"));
    for (const char* const name : {"KERNEL32.dll", "user32.dll", "mscoree.dll", "ucrtbase.dll",
                                   "WINSPOOL.DRV", "api-ms-win-core-com-l1-1-0.dll", "msvcrt.dll"})
        EXPECT_TRUE(data.IsPartOfWindows(name)) << name;
    for (const char* const name :
         {"MSVCP140.dll", "VCRUNTIME140.dll", "mfc140u.dll", "Qt6Core.dll", "libstdc++-6.dll",
          "libgcc_s_seh-1.dll", "zlib1.dll", "msvcr100.dll", "libwinpthread-1.dll", "d3dx9_43.dll"})
        EXPECT_FALSE(data.IsPartOfWindows(name)) << name;
}

} // namespace
} // namespace quillon::test
