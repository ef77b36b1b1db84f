#include "filelist/adding/refused_file.h"

#include "filelist/row_text.h"
#include "formats/row_safety.h"
#include "helpers/ansi_text.h"
#include "platform/failure_text.h"
#include "platform/run_error.h"

#include <array>

namespace quillon {

namespace {

constexpr const char* kBadCharactersTitle = "Ogiltiga tecken hittade";
constexpr const char* kCannotAddTitle = "Kan ej addera";

Refusal CannotAdd(const Text& path, const Text& reason)
{
    return {kCannotAddTitle, "Filen '" + path + "' kan ej adderas till fillistan! " + reason};
}

} // namespace

std::optional<FileStatus> StatusIfExists(const FileSystem& files, const Text& path)
{
    try {
        return files.Status(path);
    } catch (const RunError&) {
        return std::nullopt; // its row fails with the reason
    }
}

std::optional<Refusal> RefusalOfTexts(const Text& fileName, const Text& sourcePath,
                                      const Text& destination)
{
    if (ContainsText(sourcePath, ";"))
        return Refusal{kBadCharactersTitle,
                       "Källsökvägen till filen '" + sourcePath +
                           "' innehåller ogiltiga tecken! Filen kan ej adderas till fillistan!"};
    // The project file could not hold these, and '?' in their place would name another file.
    if (!AnsiText::Holds(fileName + sourcePath + destination))
        return Refusal{kBadCharactersTitle,
                       "Filen '" + sourcePath +
                           "' har tecken i namn, källsökväg eller destination som inte kan lagras "
                           "i projektet! Byt namn på filen eller katalogen och addera den på nytt. "
                           "Filen kan ej adderas till fillistan!"};
    for (const Text& fault : {NameFaultText(fileName), TypedDestinationFaultText(destination),
                              ControlCharacterFaultText(sourcePath)})
        if (!fault.empty())
            return CannotAdd(sourcePath, fault);
    return std::nullopt;
}

std::optional<Refusal> RefusalOfLowerCase(const Text& sourcePath,
                                          const std::optional<FileStatus>& meant,
                                          const std::optional<FileStatus>& found)
{
    if (!meant || (found && found->identity == meant->identity))
        return std::nullopt;
    return CannotAdd(sourcePath, "Källsökvägen lagras med små bokstäver, och '" +
                                     LowerCase(sourcePath) + "' leder till " +
                                     (found ? "en annan fil" : "ingen fil alls") +
                                     ". Byt namn på filen eller katalogen.");
}

std::optional<Refusal> RefusalToRead(const FileSystem& files, const Text& path)
{
    try {
        std::array<std::byte, 1> first{};
        files.OpenInput(path)->Read(first);
        return std::nullopt;
    } catch (const RunError& error) {
        const bool isMissing = error.Number() == ErrorNumber::kFileNotFound ||
                               error.Number() == ErrorNumber::kPathNotFound;
        if (isMissing || files.DirExists(path))
            return std::nullopt;
        return CannotAdd(path, FailureText(error, path));
    }
}

} // namespace quillon
