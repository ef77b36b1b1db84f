// A page of paper as it will come out of the printer.
#pragma once

#include "tools/list_pages.h"

#include <QWidget>

namespace quillon {

class PagePreview : public QWidget {
public:
    PagePreview();

    void ShowPage(const PrintedPage& page);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PrintedPage page_;
};

} // namespace quillon
