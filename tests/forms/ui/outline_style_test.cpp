// The outlines of controls against what is round them, measured in the pixels that are shown.
#include "ui/look/outline_style.h"

#include "support/window_test.h"
#include "ui/look/colour_scheme.h"
#include "ui/look/colours.h"

namespace quillon::test {
namespace {

constexpr double kMinContrast = 3;

class OutlineStyleTest : public testing::Test {
protected:
    void TearDown() override { QApplication::setPalette(usual); }

    /// The strongest contrast to the window's background along a line of pixels across an edge.
    static double ContrastAcross(const QImage& picture, QPointF from, QPointF to,
                                 const QColor& background)
    {
        const double scale = picture.devicePixelRatio();
        double strongest = 1;
        const double steps = QLineF(from, to).length() * scale;
        for (double step = 0; step <= steps; ++step) {
            const QPointF place = (from + (to - from) * (step / steps)) * scale;
            strongest =
                std::max(strongest, Contrast(picture.pixelColor(place.toPoint()), background));
        }
        return strongest;
    }

    /// The weakest of the four sides of a rectangle in the widget, each looked at in its middle.
    static double WeakestSide(QWidget& window, QWidget& widget, const QRect& shape)
    {
        const QImage picture = window.grab().toImage();
        const QColor background = window.palette().color(QPalette::Window);
        const QRectF rect = QRectF(shape).translated(widget.mapTo(&window, QPoint(0, 0)));
        constexpr double kAcross = 3;
        const QPointF middle = rect.center();
        const std::pair<QPointF, QPointF> sides[] = {
            {{rect.left() - 1, middle.y()}, {rect.left() + kAcross, middle.y()}},
            {{rect.right() - kAcross, middle.y()}, {rect.right() + 1, middle.y()}},
            {{middle.x(), rect.top() - 1}, {middle.x(), rect.top() + kAcross}},
            {{middle.x(), rect.bottom() - kAcross}, {middle.x(), rect.bottom() + 1}}};
        double weakest = 21;
        for (const auto& [from, to] : sides)
            weakest = std::min(weakest, ContrastAcross(picture, from, to, background));
        return weakest;
    }

    static QRect IndicatorOf(QAbstractButton& button, QStyle::SubElement element)
    {
        QStyleOptionButton option;
        option.initFrom(&button);
        return button.style()->subElementRect(element, &option, &button);
    }

    /// Measures all controls under this palette.
    static void Measure(const QPalette& palette, const std::string& name)
    {
        QApplication::setPalette(palette);
        QWidget window;
        window.setLayout(new QVBoxLayout);
        QCheckBox box("Ruta");
        QRadioButton option("Val");
        QLineEdit field;
        QLineEdit focused("Med tangentbordet");
        QPlainTextEdit area;
        QListWidget list;
        QComboBox choice;
        QComboBox typed;
        typed.setEditable(true);
        QWidget* const all[] = {&box, &option, &focused, &field, &area, &list, &choice, &typed};
        for (QWidget* widget : all)
            window.layout()->addWidget(widget);
        ShowActive(window);
        focused.setFocus();
        QApplication::processEvents();
        EXPECT_GE(WeakestSide(window, box, IndicatorOf(box, QStyle::SE_CheckBoxIndicator)),
                  kMinContrast)
            << name;
        EXPECT_GE(WeakestSide(window, option, IndicatorOf(option, QStyle::SE_RadioButtonIndicator)),
                  kMinContrast)
            << name;
        QWidget* const fields[] = {&field, &focused, &area, &list, &choice, &typed};
        for (QWidget* widget : fields)
            EXPECT_GE(WeakestSide(window, *widget, widget->rect()), kMinContrast)
                << name << ' ' << widget->metaObject()->className()
                << (widget == &focused ? " with the keyboard" : "");
        SavePicture(window, "outlines-" + name);
        for (QWidget* widget : all)
            widget->setParent(nullptr);
    }

    const QPalette usual = QApplication::palette();
};

TEST_F(OutlineStyleTest, OutlinesControlsSoThatTheyAreSeenInDark)
{
    Measure(DarkPalette(), "dark");
    Measure(QPalette(QColor(53, 53, 53), QColor(42, 42, 42)), "grey");
    Measure(QPalette(Qt::black, Qt::black), "black");
}

TEST_F(OutlineStyleTest, OutlinesControlsSoThatTheyAreSeenInLight)
{
    Measure(QPalette(QColor(0xef, 0xef, 0xef)), "light");
}

// Shows that the measurement finds such faults.
TEST_F(OutlineStyleTest, IsMissedWhereTheUsualStyleDraws)
{
    QApplication::setPalette(DarkPalette());
    QWidget window;
    window.setLayout(new QVBoxLayout);
    auto* field = new QLineEdit;
    window.layout()->addWidget(field);
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
    field->setStyle(plain.get());
    ShowActive(window);
    field->clearFocus();
    QApplication::processEvents();
    EXPECT_LT(WeakestSide(window, *field, field->rect()), 2);
    delete field;
}

} // namespace
} // namespace quillon::test
