#include "cli/calls.h"
#include "cli/medium_words.h"

#include <utility>
#include <vector>

namespace quillon::cli {

namespace {

constexpr Option kTo = {"--to", "DESTINATION", "Katalog på måldatorn, med variabler"};
constexpr Option kComponent = {"--component", "NUMMER", "Komponent som filerna hör till"};
constexpr Option kTakeTheRest = {"--continue", nullptr,
                                 "Spara även om en del filer ej kan adderas"};
constexpr Option kVbp = {"--vbp", "FIL", "Projektfilen", nullptr, Need::Required};
constexpr Option kExe = {"--exe", "FIL", "Programmet som projektet kompileras till", nullptr,
                         Need::Required};
constexpr Option kVbFolder = {"--vb-folder", "KATALOG",
                              "Katalogen med Visual Basic; utan växeln den som Registry anger"};
constexpr Option kDao35 = {"--dao35", nullptr, "Addera DAO 3.5 och Jet 3.5"};
constexpr Option kMfc = {"--mfc", nullptr, "Addera Mfc42.dll och Msvcrt.dll"};
constexpr Option kNoDep = {"--no-dep", nullptr, "Följ ej DEP-filer för ActiveX-filer"};
constexpr Option kProgramTo = {"--to", "DESTINATION",
                               "Katalog på måldatorn för programmet; %DESTDIR om inget anges"};
constexpr Option kIcon = {"--icon", "TITEL", "Ge programmet en ikon med denna titel"};
constexpr Option kIconOn = {"--icon-on", "PLATS", "Var ikonen ska ligga",
                            "group|desktop|start|programs"};
constexpr Option kDryRun = {"--dry-run", nullptr, "Visa vad som skulle adderas; spara inget"};
constexpr Option kTrust = {"--trust", "FIL",
                           "PEM-fil med rotcertifikat att lita på, utöver datorns egna"};
constexpr Option kJson = {"--json", nullptr, "Skriv ett JSON-objekt och inget annat"};

std::vector<Call> WritingCalls()
{
    return {
        {"create",
         {"PROJEKT"},
         {{"--medium", "MEDIUM", "Medium i stället för projektets eget", kMediumChoice},
          {"--to", "KATALOG", "Destinationskatalog i stället för projektets egen"},
          {"--os", "SYSTEM", "Alla Windows, eller endast ME, 2000 och XP", "all|new"},
          {"--no-compress", nullptr, "Lagra filerna utan komprimering"},
          {"--separate", nullptr, "Slå ej samman filerna"},
          {"--small", nullptr, "Minsta möjliga FILEDATA.DAT (Zstandard); bara för cd"},
          {"--sign-cert", "FIL", "Signera med detta certifikat (.spc, PEM, .pfx, .p12, pkcs11:)"},
          {"--sign-key", "FIL", "Dess privata nyckel (.pvk, PEM, pkcs11:)"},
          {"--sign-module", "FIL", "PKCS#11-modulen för en nyckel i en nyckelenhet"},
          {"--sign-password-file", "FIL",
           "Fil med nyckelns lösenord; annars gäller QUILLON_SIGN_PASSWORD"},
          {"--timestamp", "ADRESS", "Tidsstämplingstjänst i stället för projektets; none är ingen"},
          {"--no-sign", nullptr, "Signera ej, även om projektet anger det"},
          {"--continue", nullptr, "Besvara frågor så att arbetet går vidare"},
          kJson},
         "Skapar installationen. Projektfilen ändras ej.",
         CreatePackage},
        {"test",
         {"PROJEKT"},
         {{"--to", "KATALOG", "Katalog för filerna; skapas om den saknas", nullptr, Need::Required},
          kJson},
         "Skriver de filer som ett test läser. Inget startas, och projektfilen ändras ej.",
         TestProject},
    };
}

std::vector<Call> ProjectCalls()
{
    return {
        {"resave",
         {"IN", "UT"},
         {{"--after", "TIDIGARE", "Öppna först detta projekt"}, kJson},
         "Läser projektet IN och sparar det som UT.",
         ResaveProject},
        {"show", {"PROJEKT"}, {kJson}, "Visar hela projektet.", ShowProject},
        {"screen",
         {"PROJEKT"},
         {{"--to", "BILDFIL", "PNG-fil som bilden skrivs till", nullptr, Need::Required},
          {"--size", "STORLEK", "Skärmens bredd och höjd i bildpunkter; 1024x768 om inget anges"},
          {"--surface", "STORLEK",
           "Storlek på designytan när objekten placerades; 640x480 om inget anges"},
          kJson},
         "Målar hela skärmen bakom installationen som en bild.",
         PaintProjectScreen},
        {"new",
         {"PROJEKT"},
         {{"--name", "NAMN", "Projektets namn", nullptr, Need::Required},
          {"--destination", "KATALOG", "Huvudkatalog på måldatorn", nullptr, Need::Required},
          kJson},
         "Skapar ett nytt projekt.",
         NewProject},
        {"set",
         {"PROJEKT", "FÄLT=VÄRDE..."},
         {kJson},
         "Ändrar fält, t.ex. Version.ProductName=Hej, FileComponent3.CompName=Hjälp, Registry=...",
         SetFields},
    };
}

std::vector<Call> AddingCalls()
{
    return {
        {"add",
         {"PROJEKT", "FIL..."},
         {kTo, kComponent, kTakeTheRest, kJson},
         "Adderar filer till fillistan.",
         AddFiles},
        {"add-tree",
         {"PROJEKT", "KATALOG"},
         {{"--concat", nullptr, "Behåll hela sökvägen under destinationen"},
          kTo,
          kComponent,
          kTakeTheRest,
          kJson},
         "Adderar en katalog med alla underkataloger.",
         AddTreeOfFiles},
        {"add-folder",
         {"PROJEKT", "DESTINATION"},
         {kJson},
         "Adderar en tom katalog, som installationen skapar.",
         AddEmptyFolder},
        {"add-dep",
         {"PROJEKT", "DEP-FIL", "BINÄRFIL"},
         {kTo, kTakeTheRest, kJson},
         "Adderar de filer som DEP-filen anger för den binära filen.",
         AddByDepFile},
    };
}

std::vector<Call> VisualBasicCalls()
{
    return {
        {"import-vb6",
         {"PROJEKT"},
         {kVbp,
          kExe,
          kVbFolder,
          kDao35,
          {"--dao36", nullptr, "Addera DAO 3.6 och Jet 4.0"},
          {"--ado", nullptr, "Addera ADO-datakontrollen, även om projektet saknar den"},
          {"--no-ado", nullptr, "Addera ej mer för ADO än vad projektet anger"},
          {"--rdo", nullptr, "Addera RDO-datakontrollen, även om projektet saknar den"},
          {"--no-rdo", nullptr, "Addera ej mer för RDO än vad projektet anger"},
          {"--mda", nullptr, "Lägg in Microsoft Data Access (MDAC_TYP.EXE)"},
          {"--mda-visible", nullptr, "Visa dess installationsprogram för mottagaren"},
          {"--mda-ask", nullptr, "Fråga mottagaren innan det installeras"},
          kMfc,
          kNoDep,
          kProgramTo,
          kIcon,
          kIconOn,
          kDryRun,
          kTakeTheRest,
          kJson},
         "Adderar de filer som ett Visual Basic 6.0-projekt behöver.",
         ImportVb6},
        {"import-vb5",
         {"PROJEKT"},
         {kVbp, kExe, kVbFolder, kDao35, kMfc, kProgramTo, kIcon, kIconOn, kDryRun, kTakeTheRest,
          kJson},
         "Adderar de filer som ett Visual Basic 5.0-projekt behöver.",
         ImportVb5},
        {"import-vbnet",
         {"PROJEKT"},
         {kVbp,
          kExe,
          kNoDep,
          {"--net", "VERSION", "Testa att minst denna .NET Framework är installerad", "1.0|1.1"},
          {"--net-stop", nullptr, "Stoppa installationen om den saknas, i stället för att varna"},
          kProgramTo,
          kIcon,
          kIconOn,
          kDryRun,
          kTakeTheRest,
          kJson},
         "Adderar de filer som ett Visual Basic .NET-projekt (2002, 2003) behöver.",
         ImportVbNet},
    };
}

std::vector<Call> FolderImportCalls()
{
    return {
        {"import-folder",
         {"PROJEKT", "KATALOG"},
         {{"--exe", "NAMN", "Programmet, om katalogen har flera"},
          {"--with-build-files", nullptr, "Addera även .pdb, .lib och annat som bygget lämnar"},
          {"--keep-version", nullptr, "Ändra ej projektets versionsinformation"},
          {"--no-net-test", nullptr, "Låt ej installationen testa .NET Framework"},
          {"--strict", nullptr, "Stoppa om ett bibliotek saknas eller är för fel processor"},
          kProgramTo,
          kIcon,
          kIconOn,
          kDryRun,
          kTakeTheRest,
          kJson},
         "Adderar katalogen där ett program är byggt eller publicerat.",
         ImportFolder},
    };
}

std::vector<Call> RowCalls()
{
    return {
        {"remove",
         {"PROJEKT", "RADER..."},
         {kJson},
         "Tar bort rader. RADER är namn (*.dll) eller nummer (3, 2-5, 1,4); name:3 är filen 3.",
         RemoveRows},
        {"refresh",
         {"PROJEKT"},
         {kJson},
         "Uppdaterar storlek, datum och tid; markerar filer som saknas.",
         RefreshRows},
        {"sort",
         {"PROJEKT"},
         {{"--by", "NYCKEL", "Vad raderna sorteras efter; name om inget anges",
           "name|destination|date|time|component|extension"},
          kJson},
         "Sorterar fillistan.",
         SortFileList},
        {"replace",
         {"destinations|sources|options", "PROJEKT", "SÖK", "ERSÄTT"},
         {{"--part", nullptr, "Ersätt även delar av destinationer och källsökvägar"}, kJson},
         "Söker och ersätter i alla rader.",
         ReplaceTexts},
        {"options",
         {"PROJEKT", "RADER", "BOKSTÄVER"},
         {kJson},
         "Ger rader kopieringsinställningar, t.ex. DA; en tom text ger inga.",
         SetCopyOptions},
        {"compare-lst",
         {"PROJEKT", "LST-FIL"},
         {kJson},
         "Visar filer som LST-filen har och fillistan saknar.",
         CompareLstFile},
        {"print",
         {"PROJEKT"},
         {{"--to", "FIL", "PDF-fil som fillistan skrivs ut i", nullptr, Need::Required}, kJson},
         "Skriver ut fillistan som PDF.",
         PrintProject},
    };
}

std::vector<Call> PackageCalls()
{
    return {
        {"list",
         {"PAKET"},
         {kTrust, kJson},
         "Visar varje rad i en färdig installation och var dess innehåll ligger.",
         ListPackage},
        {"verify",
         {"PAKET"},
         {kTrust, kJson},
         "Kontrollerar en färdig installation: varje fil, varje CRC, båda INF-filerna.",
         VerifyPackageFolder},
        {"extract",
         {"PAKET"},
         {{"--to", "KATALOG", "Katalog som filerna packas upp i", nullptr, Need::Required},
          {"--overwrite", nullptr, "Skriv över filer som redan finns"},
          kTrust,
          kJson},
         "Packar upp filerna i en färdig installation. Inget installeras eller startas.",
         ExtractPackage},
    };
}

} // namespace

std::span<const Call> AllCalls()
{
    static const std::vector<Call> kCalls = [] {
        std::vector<Call> calls;
        for (const auto part : {WritingCalls, ProjectCalls, AddingCalls, VisualBasicCalls,
                                FolderImportCalls, RowCalls, PackageCalls})
            for (Call& call : part())
                calls.push_back(std::move(call));
        return calls;
    }();
    return kCalls;
}

} // namespace quillon::cli
