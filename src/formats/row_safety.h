// Which rows a setup can install: their names, their destinations with the variables unexpanded,
// and the folder of a tree package where their files lie. The tool refuses what does not pass when
// a row is added and before a package is made; `verify` and the setup refuse a package that has it.
#pragma once

#include "formats/install_row.h"
#include "helpers/text.h"
#include "helpers/windows_name.h"

namespace quillon {

/// The mark of an empty folder is in place of a name.
PathFault FaultOfRowName(std::string_view name);

/// Folders stand for variables only where the setup expands them to one: "C:\%SYSDIR" has a second
/// colon.
PathFault FaultOfDestination(std::string_view destination);

/// The folder below a tree package's own; empty where the file is in that itself.
PathFault FaultOfSourceFolder(std::string_view folder);

/// The first fault of a row as FILELIST.INF has it. Its source folder counts in a tree alone: no
/// other package goes by it.
PathFault FaultOfRow(const InstallRow& row, bool isTree);

/// The first word that looks like a variable and is none, "%DESTDR"; the setup leaves it as it
/// stands. Empty where there is none.
Text UnknownVariableIn(std::string_view destination);

/// What is wrong, in words that go on after a colon, without a dot at the end; Swedish.
Text PathFaultText(PathFault fault);

/// The same as a sentence: "Namnet 'aux' fungerar inte i Windows: ...". Empty where nothing is
/// wrong.
Text NameFaultText(std::string_view name);
Text RowNameFaultText(std::string_view name);
Text DestinationFaultText(std::string_view destination);
Text SourceFolderFaultText(std::string_view folder);

} // namespace quillon
