// Two small arrows beside a number field that step its value; the arrow keys in the field do the
// same. What the field holds stays the field's own: an entry beyond the range is its check's to
// correct.
#pragma once

#include <QWidget>

class QLineEdit;

namespace quillon {

class UpDownArrows : public QWidget {
public:
    explicit UpDownArrows(QLineEdit* field);

    void SetRange(int min, int max);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Step(int by);

    QLineEdit* field_;
    int min_ = 0;
    int max_ = 0;
};

} // namespace quillon
