#include "importers/forms/dep_command.h"

#include "importers/add_dep_file.h"
#include "shell/moved_rows.h"

namespace quillon {

void AddDepFileInWindow(Session& session, MainWindow& window)
{
    const auto rows =
        AddDepFileCommand(ListWork{session.project, session.state, session.host, session.ask},
                          session.LastDepFileDir);
    if (rows)
        ShowMovedRows(window, rows->places);
}

} // namespace quillon
