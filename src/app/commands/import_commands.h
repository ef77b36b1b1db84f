// The windows that the importers open beyond their own.
#pragma once

#include "importers/forms/import_forms.h"

namespace quillon {

class MainForm;

ImportContext MakeImportContext(MainForm& form);

} // namespace quillon
