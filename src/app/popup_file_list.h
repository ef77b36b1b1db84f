// The popup menu of the file list.
#pragma once

class QMenu;
class QPoint;
class QWidget;

namespace quillon {

class MainForm;

/// Made anew each time that it opens, so it is always in line with the project.
QMenu* MakePopupFileList(MainForm& form);

/// Opens the menu there and leaves it open.
void ShowPopupFileList(MainForm& form, const QPoint& onScreen);

} // namespace quillon
