// A picture as it will look, made smaller where it has no room; words where there is none to show.
#pragma once

#include <QImage>
#include <QWidget>

class QPainter;

namespace quillon {

class PictureView : public QWidget {
public:
    explicit PictureView(QWidget* parent = nullptr);

    void ShowPicture(QImage picture);
    /// Says in place of a picture why there is none.
    void ShowNote(const QString& note);

    bool HasPicture() const { return !picture_.isNull(); }
    const QString& ShownNote() const { return note_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

    const QImage& Picture() const { return picture_; }
    /// The picture in the middle of `room`, `shown` large; the note where there is no picture.
    void Paint(QPainter& painter, const QRect& room, const QSize& shown) const;

private:
    QImage picture_;
    QString note_;
};

} // namespace quillon
