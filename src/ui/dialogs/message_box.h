// The picture of a message box, one of our own: that of the desktop's style may be missing, or
// drawn for another background.
#pragma once

class QMessageBox;

namespace quillon {

/// Replaces the picture of the box's icon by ours.
void ShowOwnPicture(QMessageBox& box);

} // namespace quillon
