// The commands that work on the text of the selected tab, or on the rows of the file list.
#pragma once

namespace quillon {

class MainForm;

// On a tab without such a text they do nothing.
void CopyText(MainForm& form);
void PasteText(MainForm& form);

/// Puts a whole INI file at the end of the INI list. It acts only while that list is in view.
void ImportIniFile(MainForm& form);

} // namespace quillon
