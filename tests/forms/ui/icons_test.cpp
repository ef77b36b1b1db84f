#include "ui/look/icons.h"

#include "shell/command_table.h"
#include "support/window_test.h"
#include "ui/look/colours.h"

#include <map>
#include <set>

namespace quillon::test {
namespace {

QPalette DarkPalette()
{
    QPalette palette(QColor(0x2b, 0x2d, 0x31));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
    return palette;
}

/// The palette of the program for as long as one test runs.
class Icons : public testing::Test {
protected:
    ~Icons() override { QApplication::setPalette(before_); }

    static QImage Draw(const QIcon& icon, int side = 24, qreal scale = 1,
                       QIcon::Mode mode = QIcon::Normal)
    {
        return icon.pixmap(QSize(side, side), scale, mode)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    }

private:
    QPalette before_ = QApplication::palette();
};

std::set<CommandId> IdsWithAButton()
{
    std::set<CommandId> ids;
    for (int tab = 0; tab < kTabCount; ++tab)
        for (const CommandId id : ToolbarIds(static_cast<Tab>(tab)))
            if (id != CommandId::None)
                ids.insert(id);
    return ids;
}

std::set<CommandId> IdsWithAPicture()
{
    std::set<CommandId> ids;
    for (const MenuRow& row : MenuBarRows())
        if (!CommandIcon(row.command.id).isNull())
            ids.insert(row.command.id);
    for (const Command& command : ToolbarOnlyCommands())
        if (!CommandIcon(command.id).isNull())
            ids.insert(command.id);
    return ids;
}

constexpr const char* kNames[] = {"tab-files",      "tab-design",    "tab-dialogs",
                                  "tab-registry",   "tab-ini",       "quillon",
                                  "tab-components", "medium-floppy", "medium-internet",
                                  "medium-cd",      "medium-cd-tree"};

int OpaquePixels(const QImage& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            count += qAlpha(picture.pixel(x, y)) > 100 ? 1 : 0;
    return count;
}

TEST_F(Icons, StandOnEveryButtonAndInTheMenus)
{
    for (const CommandId id : IdsWithAButton())
        EXPECT_FALSE(CommandIcon(id).isNull()) << static_cast<int>(id);
    for (const MenuRow& row : MenuBarRows())
        if (row.part == MenuPart::Entry)
            EXPECT_FALSE(CommandIcon(row.command.id).isNull()) << row.command.caption;
    EXPECT_TRUE(CommandIcon(CommandId::ImportProject).isNull());
    EXPECT_TRUE(CommandIcon(CommandId::None).isNull());
    EXPECT_TRUE(NamedIcon("no-such-picture").isNull());
}

TEST_F(Icons, AreDrawnAndDifferFromEachOther)
{
    std::map<QByteArray, int> seen;
    // Commands that do the same thing to another file, or in another place.
    const std::set<CommandId> alike = {
        CommandId::HelpSearch, CommandId::HelpOnHelp, CommandId::ImportVB6, CommandId::ImportVBNet,
        kRecentFiles[1],       kRecentFiles[2],       kRecentFiles[3]};
    for (const CommandId id : IdsWithAPicture()) {
        if (alike.count(id) > 0)
            continue;
        const QImage picture = Draw(CommandIcon(id));
        EXPECT_GT(OpaquePixels(picture), 50) << static_cast<int>(id);
        EXPECT_LT(OpaquePixels(picture), 24 * 24) << static_cast<int>(id);
        const QByteArray bytes(reinterpret_cast<const char*>(picture.constBits()),
                               picture.sizeInBytes());
        const auto [same, isNew] = seen.emplace(bytes, static_cast<int>(id));
        EXPECT_TRUE(isNew) << static_cast<int>(id) << " looks like " << same->second;
    }
    for (const char* name : kNames)
        EXPECT_GT(OpaquePixels(Draw(NamedIcon(name), 48)), 200) << name;
}

TEST_F(Icons, AreDrawnInDevicePixels)
{
    for (const CommandId id : IdsWithAPicture())
        for (const qreal scale : {1.0, 1.5, 2.0}) {
            const QPixmap picture = CommandIcon(id).pixmap(QSize(24, 24), scale);
            EXPECT_EQ(picture.width(), qRound(24 * scale)) << static_cast<int>(id);
            EXPECT_EQ(picture.height(), qRound(24 * scale)) << static_cast<int>(id);
            EXPECT_EQ(picture.devicePixelRatio(), scale) << static_cast<int>(id);
        }
}

// A sharp vertical line: opaque in two columns, none beside them.
TEST_F(Icons, HaveSharpLinesAtEachScale)
{
    for (const int scale : {2, 3, 4}) {
        // The sides of the picture frame are at 3 and 21 of 24.
        const QImage picture = Draw(CommandIcon(CommandId::TextBox), 12 * scale);
        const int middle = picture.height() * 18 / 24;
        const auto alphaAt = [&](int x) { return qAlpha(picture.pixel(x, middle)); };
        EXPECT_LT(alphaAt(scale - 1), 8) << scale;
        EXPECT_GT(alphaAt(scale), 247) << scale;
        EXPECT_GT(alphaAt(2 * scale - 1), 247) << scale;
        EXPECT_LT(alphaAt(2 * scale), 8) << scale;
    }
}

TEST_F(Icons, FollowThePaletteAtOnce)
{
    QApplication::setPalette(QPalette(QColor(0xf0, 0xf0, 0xf0)));
    const QIcon icon = CommandIcon(CommandId::TextBox);
    const QColor onLight = Draw(icon).pixelColor(3, 18);
    QApplication::setPalette(DarkPalette());
    const QColor onDark = Draw(icon).pixelColor(3, 18);
    EXPECT_LT(onLight.lightness(), 80);
    EXPECT_GT(onDark.lightness(), 180);
}

TEST_F(Icons, AreGreyWhereTheCommandIsOff)
{
    const QImage off = Draw(CommandIcon(CommandId::OpenProject), 24, 1, QIcon::Disabled);
    for (int y = 0; y < 24; ++y)
        for (int x = 0; x < 24; ++x)
            if (qAlpha(off.pixel(x, y)) > 200)
                ASSERT_LT(off.pixelColor(x, y).hsvSaturation(), 30) << x << ' ' << y;
}

TEST_F(Icons, HaveAnAccentThatIsToldFromTheWindow)
{
    for (const QColor& background : {QColor(0xf0, 0xf0, 0xf0), QColor(0xff, 0xff, 0xff),
                                     QColor(0x2b, 0x2d, 0x31), QColor(0x10, 0x10, 0x10)})
        for (const QColor& selection : {QColor(0x30, 0x8c, 0xc6), QColor(0x10, 0x20, 0x60),
                                        QColor(0xff, 0xee, 0x88), QColor(0x80, 0x80, 0x80)}) {
            QPalette palette(background);
            palette.setColor(QPalette::Highlight, selection);
            EXPECT_GE(Contrast(AccentColour(palette), palette.color(QPalette::Window)), 3.0)
                << background.name().toStdString() << selection.name().toStdString();
        }
}

/// All pictures with their names, as they look on this palette.
QWidget* Sheet(qreal scale)
{
    auto* sheet = new QWidget;
    auto* grid = new QGridLayout(sheet);
    grid->setSpacing(10);
    int place = 0;
    const auto add = [&](const QIcon& icon, int side, const QString& name) {
        auto* picture = new QLabel;
        QPixmap drawn = icon.pixmap(QSize(side, side), scale);
        drawn.setDevicePixelRatio(1);
        picture->setPixmap(drawn);
        picture->setAlignment(Qt::AlignCenter);
        auto* label = new QLabel(name);
        label->setAlignment(Qt::AlignCenter);
        grid->addWidget(picture, place / 10 * 2, place % 10);
        grid->addWidget(label, place / 10 * 2 + 1, place % 10);
        ++place;
    };
    for (const CommandId id : IdsWithAPicture())
        add(CommandIcon(id), 24, QString::number(static_cast<int>(id)));
    for (const char* name : kNames)
        add(NamedIcon(name), 48, name);
    for (const CommandId id : {CommandId::NewProject, CommandId::OpenProject,
                               CommandId::SaveProject, CommandId::Create, CommandId::Test})
        add(QIcon(CommandIcon(id).pixmap(QSize(24, 24), scale, QIcon::Disabled)), 24, "off");
    return sheet;
}

TEST_F(Icons, ShowThemselvesOnASheet)
{
    for (const bool dark : {false, true})
        for (const int scale : {1, 2}) {
            QApplication::setPalette(dark ? DarkPalette() : QPalette(QColor(0xf0, 0xf0, 0xf0)));
            const std::unique_ptr<QWidget> sheet(Sheet(scale));
            SavePicture(*sheet, std::string("icons-") + (dark ? "dark-" : "light-") +
                                    std::to_string(100 * scale));
        }
}

} // namespace
} // namespace quillon::test
