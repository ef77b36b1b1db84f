#include "cli/calls.h"

namespace quillon::cli {

namespace {

constexpr Option kJson = {"--json", nullptr, "Skriv ett JSON-objekt och inget annat"};

} // namespace

std::span<const Call> AllCalls()
{
    static const Call kCalls[] = {
        {"create",
         {"PROJEKT"},
         {{"--medium", "MEDIUM", "Medium i stället för projektets eget", "floppy|cd|tree|internet"},
          {"--to", "KATALOG", "Destinationskatalog i stället för projektets egen"},
          {"--os", "SYSTEM", "Alla Windows, eller endast ME, 2000 och XP", "all|new"},
          {"--no-compress", nullptr, "Lagra filerna utan komprimering"},
          {"--separate", nullptr, "Slå ej samman filerna"},
          {"--continue", nullptr, "Besvara frågor så att arbetet går vidare"},
          kJson},
         "Skapar installationen. Projektfilen ändras ej.",
         CreatePackage},
        {"resave",
         {"IN", "UT"},
         {{"--after", "TIDIGARE", "Öppna först detta projekt"}, kJson},
         "Läser projektet IN och sparar det som UT.",
         ResaveProject},
        {"show", {"PROJEKT"}, {kJson}, "Visar hela projektet.", ShowProject},
        {"list",
         {"KATALOG"},
         {kJson},
         "Visar varje rad i en färdig installation och var dess innehåll ligger.",
         ListPackage},
        {"verify",
         {"KATALOG"},
         {kJson},
         "Kontrollerar en färdig installation: varje fil, varje CRC, båda INF-filerna.",
         VerifyPackageFolder},
    };
    return kCalls;
}

} // namespace quillon::cli
