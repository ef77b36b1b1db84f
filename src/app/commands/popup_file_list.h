// The popup menu of the file list.
#pragma once

class QMenu;
class QPoint;
class QWidget;

namespace quillon {

class MainForm;

/// Built each time that it opens, so that it always fits the project.
QMenu* MakePopupFileList(MainForm& form);

/// Opens the menu there and leaves it open.
void ShowPopupFileList(MainForm& form, const QPoint& onScreen);

} // namespace quillon
