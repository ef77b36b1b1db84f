// How the program looks and what Qt itself says, set once before the first window.
#pragma once

class QApplication;

namespace quillon {

void PrepareAppearance(QApplication& application);

} // namespace quillon
