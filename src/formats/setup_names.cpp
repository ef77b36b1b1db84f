#include "formats/setup_names.h"

#include "formats/package_files.h"
#include "formats/row_safety.h"
#include "formats/runtime_programs.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr const char* kPackageFiles[] = {kFileListName,
                                         kSetupInformationName,
                                         kFileContainerName,
                                         kDesignContainerName,
                                         kAutorunName,
                                         kLicenseRtfName,
                                         kSetupFilesFolder,
                                         kSelfExtractArchive,
                                         kSelfExtractProject,
                                         RuntimePrograms::kSetup.inPackage,
                                         RuntimePrograms::kUnzipLibrary.inPackage,
                                         RuntimePrograms::kRegistryHelper.inPackage,
                                         RuntimePrograms::kSecondRegistryHelper.inPackage,
                                         RuntimePrograms::kUninstaller.inPackage,
                                         kManifestName};

PathFault FaultOfGroupPart(const Text& part)
{
    if (BeginsWithDrive(part) && part.size() == 2)
        return PathFault::Colon;
    const PathFault fault = FaultOfName(part);
    const bool leadsElsewhere = fault == PathFault::Climbs || fault == PathFault::Device ||
                                fault == PathFault::Control || fault == PathFault::TooLong;
    return leadsElsewhere ? fault : PathFault::None;
}

} // namespace

PathFault FaultOfProgramGroup(std::string_view group)
{
    for (const Text& part : PathParts(group))
        if (const PathFault fault = FaultOfGroupPart(TrimBlanks(part)); fault != PathFault::None)
            return fault;
    return PathFault::None;
}

bool IsNameOfPackageFile(std::string_view name, std::string_view languageFile)
{
    return (!languageFile.empty() && EqualIgnoreCase(name, languageFile)) ||
           std::any_of(std::begin(kPackageFiles), std::end(kPackageFiles),
                       [&](const char* own) { return EqualIgnoreCase(name, own); });
}

Text ProgramGroupFaultText(std::string_view group)
{
    const PathFault fault = FaultOfProgramGroup(group);
    return fault == PathFault::None ? Text()
                                    : "Programgruppen '" + Text(group) +
                                          "' fungerar inte: " + PathFaultText(fault) + ".";
}

Text SetupNameFaultText(std::string_view name, std::string_view languageFile)
{
    const Text what = "Installationsprogrammets filnamn '" + Text(name) + "' fungerar inte: ";
    if (const PathFault fault = FaultOfName(name); fault != PathFault::None)
        return what + PathFaultText(fault) + ".";
    if (IsNameOfPackageFile(name, languageFile))
        return what + "paketet har en annan fil med det namnet.";
    return {};
}

} // namespace quillon
