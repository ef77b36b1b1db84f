// Rows of the file list on the clipboard.
#pragma once

namespace quillon {

class MainForm;

/// The selected rows, whole for another window of the tool, and the columns that are shown as lines
/// with tabs, such as a spreadsheet takes in.
void CopyRows(MainForm& form);

/// Rows that were copied so, or files that a file manager has copied.
void PasteRows(MainForm& form);

} // namespace quillon
