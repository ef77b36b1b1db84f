// Printed pages as a PDF file, for machines without a printer or a display.
#pragma once

#include "platform/file_system.h"
#include "tools/list_pages.h"

namespace quillon {

/// Writes the pages as A4 with their fonts embedded; Arial where the machine has it, else a face of
/// the same widths. `title` and `created` go into the document's properties. The file that was
/// there stays where the writing fails, which throws `RunError`.
void WritePdf(FileSystem& files, const Text& path, const std::vector<PrintedPage>& pages,
              const Text& title, const LocalTime& created);

} // namespace quillon
