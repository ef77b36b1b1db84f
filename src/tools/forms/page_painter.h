// Draws a printed page on a printer and in the preview: the same calls, another device.
#pragma once

#include "tools/list_pages.h"

class QPagedPaintDevice;
class QPainter;
class QRectF;

namespace quillon {

/// Draws the page scaled into the rectangle, which has the shape of the paper.
void DrawPage(QPainter& painter, const PrintedPage& page, const QRectF& paper);

/// False where the device refuses; what was printed until then is thrown away.
bool PrintPages(QPagedPaintDevice& device, const std::vector<PrintedPage>& pages);

} // namespace quillon
