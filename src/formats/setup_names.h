// The two names of a project that become paths without being rows: the starter in the package's
// folder, and the program group in the start menu. The tool refuses what would lead elsewhere, and
// so does the setup.
#pragma once

#include "helpers/text.h"
#include "helpers/windows_name.h"

namespace quillon {

/// What keeps a program group, with or without its variables, from lying in the start menu: "..", a
/// drive, a device's name. Other characters that no name can have are replaced by the setup.
PathFault FaultOfProgramGroup(std::string_view group);

/// True for a name that another file of every package has, the language file's among them.
bool IsNameOfPackageFile(std::string_view name, std::string_view languageFile);

/// What is wrong, as a sentence in Swedish; empty where nothing is.
Text ProgramGroupFaultText(std::string_view group);
Text SetupNameFaultText(std::string_view name, std::string_view languageFile);

} // namespace quillon
