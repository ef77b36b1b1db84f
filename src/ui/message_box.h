// The picture of a message box, one of our own: that of the desktop's style may be missing, or
// drawn for another background.
#pragma once

class QMessageBox;

namespace quillon {

/// Puts our picture in the place of the one that the box's icon stands for.
void ShowOwnPicture(QMessageBox& box);

} // namespace quillon
