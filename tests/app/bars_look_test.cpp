#include "app/window/bars_look.h"

#include "app/MainForm.h"
#include "support/window_test.h"
#include "ui/look/colour_scheme.h"

#include <fstream>
#include <set>
#include <sstream>

namespace quillon::test {
namespace {

constexpr BarsStyle kStyles[] = {BarsStyle::WindowsXP, BarsStyle::Office2000, BarsStyle::OfficeXP,
                                 BarsStyle::Office2003};

class BarsLook : public WindowTest {
protected:
    ~BarsLook() override { QApplication::setPalette(before_); }

    static QToolBar& Standard(MainForm& form) { return Find<QToolBar>(form, "Standard"); }

private:
    QPalette before_ = QApplication::palette();
};

TEST_F(BarsLook, HasFourLooksOnLightAndDark)
{
    std::set<QString> sheets;
    for (const BarsStyle style : kStyles)
        for (const QPalette& palette : {QPalette(QColor(0xf0, 0xf0, 0xf0)), DarkPalette()}) {
            const QString sheet = BarsStyleSheet(style, palette);
            EXPECT_FALSE(sheet.contains('%')) << sheet.toStdString();
            sheets.insert(sheet);
        }
    EXPECT_EQ(sheets.size(), 8U);
}

TEST_F(BarsLook, FollowsTheSetting)
{
    MainForm form(session);
    for (const BarsStyle style : kStyles) {
        session.Settings.WindowOptions.CBarsCurrentStyle = static_cast<Integer>(style);
        form.ShowSettings();
        const QString sheet = BarsStyleSheet(style, QApplication::palette());
        EXPECT_EQ(form.menuBar()->styleSheet(), sheet);
        EXPECT_EQ(Standard(form).styleSheet(), sheet);
    }
}

TEST_F(BarsLook, TakesANumberThatIsNoLookForTheUsualOne)
{
    for (const int number : {-1, 4, 32767})
        EXPECT_EQ(BarsStyleSheet(static_cast<BarsStyle>(number), QPalette()),
                  BarsStyleSheet(BarsStyle::Office2003, QPalette()));
}

TEST_F(BarsLook, FollowsThePalette)
{
    MainForm form(session);
    form.show();
    QApplication::setPalette(DarkPalette());
    QCoreApplication::processEvents();
    EXPECT_EQ(Standard(form).styleSheet(), BarsStyleSheet(BarsStyle::Office2003, DarkPalette()));
}

TEST_F(BarsLook, GrowsWithTheFont)
{
    MainForm form(session);
    EXPECT_EQ(Standard(form).iconSize().height(),
              std::max(24, form.fontMetrics().height() * 3 / 2));
    QFont large = form.font();
    large.setPointSize(24);
    form.setFont(large);
    EXPECT_GT(Standard(form).iconSize().height(), 40);
}

TEST_F(BarsLook, ShowsItselfInPictures)
{
    for (const bool dark : {false, true})
        for (const BarsStyle style : kStyles) {
            QApplication::setPalette(dark ? DarkPalette() : QPalette(QColor(0xf0, 0xf0, 0xf0)));
            session.Settings.WindowOptions.CBarsCurrentStyle = static_cast<Integer>(style);
            MainForm form(session);
            // All buttons on, as in the finished program.
            for (QAction* action : form.actions() + form.findChildren<QAction*>())
                action->setEnabled(true);
            form.resize(760, 160);
            ShowActive(form);
            auto* open = form.findChild<QAction*>(
                QString("cmd%1").arg(static_cast<int>(CommandId::OpenProject)));
            auto* button = dynamic_cast<QToolButton*>(Standard(form).widgetForAction(open));
            ASSERT_NE(button, nullptr);
            button->setAttribute(Qt::WA_UnderMouse);
            const std::string name =
                "bars-" + std::to_string(static_cast<int>(style)) + (dark ? "-dark" : "-light");
            SavePicture(form, name);
            auto* menu = form.menuBar()->actions().front()->menu();
            menu->setActiveAction(menu->actions()[1]);
            SavePicture(*menu, name + "-menu");
        }
}

} // namespace
} // namespace quillon::test
