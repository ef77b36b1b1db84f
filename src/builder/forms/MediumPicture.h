// A medium as a large picture to press, above its radio button. It shows which medium is chosen,
// which one the mouse is over, and which one the keyboard is on.
#pragma once

#include <QAbstractButton>
#include <functional>

class QRadioButton;

namespace quillon {

class MediumPicture : public QAbstractButton {
public:
    MediumPicture(const QIcon& picture, QRadioButton* button);

    bool IsHighlighted() const { return isHighlighted_; }
    void SetHighlighted(bool highlighted);

    QSize sizeHint() const override;

    /// The mouse came over the picture.
    std::function<void()> onMouseOver;

protected:
    void enterEvent(QEnterEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRadioButton* button_;
    bool isHighlighted_ = false;
};

} // namespace quillon
