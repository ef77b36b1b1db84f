#include "filelist/view/status_text.h"

#include "filelist/view/totals.h"

namespace quillon {

Text StatusBarText(const FileList& list, char decimalSign, Ask& ask)
{
    // The total is whole kilobytes, so the decimal shown is always 0.
    const Long total = GetTotalSizeOfFiles(list, decimalSign, ask);
    return NumberText(static_cast<std::int64_t>(list.rows.size())) + " objekt,  " +
           FormatNumber(total, "## ##0.0", decimalSign) + " kb";
}

Text SelectionText(std::size_t selectedRows)
{
    return NumberText(static_cast<std::int64_t>(selectedRows)) + " markerade objekt";
}

bool HasRowsForCommand(const FileList& list, CommandNeeds needs, Ask& ask)
{
    if (!list.rows.empty())
        return true;
    const bool needsSelection = needs == CommandNeeds::SelectedRow;
    ask.Inform("Info", Text("Det finns inga filer i fillistan. Innan du kan använda detta kommando "
                            "måste du ha lagt in filer i fillistan") +
                           (needsSelection ? " och markerat en fil." : "."));
    return false;
}

} // namespace quillon
