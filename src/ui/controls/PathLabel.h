// A path on one line, cut in its middle where there is no room; whole as its tool tip.
#pragma once

#include <QLabel>

namespace quillon {

class PathLabel : public QLabel {
public:
    PathLabel();

    void ShowPath(const QString& path);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
