// The database files that an import of Visual Basic adds on request: DAO by what the registry says
// of it, the data controls, and the package of Microsoft's data access components.
#pragma once

#include "importers/import_vb6.h"
#include "importers/row_import.h"

namespace quillon {

void AddVb6Dao35(RowImport& import, const Text& redistFolder);
void AddVb6Dao36(RowImport& import);
void AddVb5Dao35(RowImport& import);

enum class DataAccessQuestion { Ask, DoNotAsk };
void AddAdo(RowImport& import, Vb6Choices& choices, DataAccessQuestion question);
void AddRdo(RowImport& import, Vb6Choices& choices, DataAccessQuestion question);

/// The package goes under a name that the setup knows, so that it is not taken for a program.
void AddDataAccessPackage(RowImport& import, const Text& redistFolder);

} // namespace quillon
