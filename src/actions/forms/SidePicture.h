// The picture at the left of a setup's page: as high as the page, its shape kept, and a word in its
// place where there is none.
#pragma once

#include <QImage>
#include <QWidget>

namespace quillon {

class SidePicture : public QWidget {
public:
    explicit SidePicture(QSize size);

    void ShowPicture(const QImage& picture);
    void ShowNote(const QString& note);

    bool HasPicture() const { return !picture_.isNull(); }
    const QString& ShownNote() const { return note_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage picture_;
    QString note_;
};

} // namespace quillon
