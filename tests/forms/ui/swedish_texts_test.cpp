#include "ui/swedish/swedish_texts.h"

#include "support/window_test.h"

#include <set>

namespace quillon::test {
namespace {

/// Notes what Qt wants translated and no other translator knew. Whenever Qt reads a short cut it
/// asks for the names of all keys that any keyboard ever had; those have a test of their own.
class Untranslated : public QTranslator {
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        // Saving the test's own pictures fetches an error text that is not shown.
        if (const std::string_view where = context; where != "QShortcut" && where != "QImageWriter")
            asked.insert(std::string(context) + ": " + source);
        return {};
    }
    bool isEmpty() const override { return false; }

    mutable std::set<std::string> asked;
};

class SwedishTextsTest : public testing::Test {
protected:
    SwedishTextsTest()
    {
        // The translator that was installed last is asked first.
        QCoreApplication::installTranslator(&untranslated_);
        QCoreApplication::installTranslator(&swedish_);
        untranslated_.asked.clear();
    }
    ~SwedishTextsTest() override
    {
        QCoreApplication::removeTranslator(&untranslated_);
        QCoreApplication::removeTranslator(&swedish_);
        for (const std::string& text : untranslated_.asked)
            ADD_FAILURE() << "not in Swedish: " << text;
    }

    static void AddTexts(const QObject& object, QStringList& texts)
    {
        for (const char* property : {"text", "title", "windowTitle", "toolTip", "statusTip",
                                     "accessibleName", "accessibleDescription", "placeholderText"})
            texts << object.property(property).toString();
        if (const auto* list = dynamic_cast<const QComboBox*>(&object))
            for (int row = 0; row < list->count(); ++row)
                texts << list->itemText(row);
        if (const auto* header = dynamic_cast<const QHeaderView*>(&object);
            header && header->model())
            for (int column = 0; column < header->count(); ++column)
                texts << header->model()->headerData(column, header->orientation()).toString();
    }

    /// Every text of the window and all that belongs to it.
    static QStringList TextsOf(const QObject& window)
    {
        QStringList texts;
        AddTexts(window, texts);
        for (const QObject* object : window.findChildren<QObject*>())
            AddTexts(*object, texts);
        texts.removeAll("");
        return texts;
    }

    /// No text of the window has one of the words that Qt's English is made of.
    static void ExpectNoEnglish(const QObject& window)
    {
        static const QRegularExpression english(
            "\\b(the|files?|open|save|cancel|names?|folders?|director(y|ies)|look|type|size|date|"
            "modified|copy|paste|undo|redo|cut|delete|select|fonts?|colou?rs?|style|yes|no|go|view|"
            "new|all|hue|sat|val|red|green|blue|channel|pick|screen|add|custom|basic|computer|back|"
            "forward|parent|show|sample|effects|underline|strikeout|writing|system|any|close|help|"
            "details|scroll|page|list|detail|create|sidebar|press|step|up|down)\\b",
            QRegularExpression::CaseInsensitiveOption);
        for (QString text : TextsOf(window))
            EXPECT_FALSE(english.match(text.remove('&')).hasMatch()) << text.toStdString();
    }

    /// Keeps the menu that comes up next, looks at it and closes it.
    static void OnNextMenu(std::function<void(QMenu&)> use)
    {
        QTimer::singleShot(0, [use = std::move(use)] {
            auto* menu = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr) << "no menu came up";
            use(*menu);
            menu->close();
        });
    }

    static void CheckContextMenu(QWidget& widget, int entries)
    {
        ShowActive(*widget.window());
        bool hasShown = false;
        OnNextMenu([&](QMenu& menu) {
            hasShown = true;
            EXPECT_GE(menu.actions().size(), entries);
            ExpectNoEnglish(menu);
            for (const QAction* action : menu.actions())
                ExpectNoEnglish(*action);
            SavePicture(menu, std::string("menu-") + widget.metaObject()->className());
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&widget, &event);
        // A field's menu runs asynchronously, that of a scroll bar does not return before it is
        // closed.
        EXPECT_TRUE(QTest::qWaitFor([&] { return hasShown; }));
    }

private:
    Untranslated untranslated_;
    SwedishTexts swedish_;
};

TEST_F(SwedishTextsTest, CoverTheFileDialog)
{
    for (const auto mode : {QFileDialog::AcceptOpen, QFileDialog::AcceptSave}) {
        QFileDialog dialog(nullptr, {}, QDir::tempPath());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setAcceptMode(mode);
        dialog.setViewMode(QFileDialog::Detail);
        dialog.setNameFilter("Projektfiler (*.qnp)");
        // The paths of this machine are no texts of Qt's.
        dialog.findChild<QComboBox*>("lookInCombo")->clear();
        ShowActive(dialog);
        EXPECT_GT(TextsOf(dialog).size(), 15);
        ExpectNoEnglish(dialog);
        for (const QAction* action : dialog.findChildren<QAction*>())
            if (action->text() == "Bakåt")
                EXPECT_EQ(action->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Left));
    }
}

TEST_F(SwedishTextsTest, CoverEveryButtonOfABox)
{
    QMessageBox box;
    box.setStandardButtons(static_cast<QMessageBox::StandardButtons>(0x0FFFFC00));
    box.setDetailedText("x");
    EXPECT_GE(TextsOf(box).size(), 18);
    ExpectNoEnglish(box);
    EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "Avbryt");
    EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Ja");
}

TEST_F(SwedishTextsTest, CoverTheColourDialog)
{
    QColorDialog dialog;
    dialog.setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
    ShowActive(dialog);
    EXPECT_GT(TextsOf(dialog).size(), 12);
    ExpectNoEnglish(dialog);
    SavePicture(dialog, "QColorDialog");
}

TEST_F(SwedishTextsTest, CoverTheFontDialog)
{
    QFontDialog dialog;
    dialog.setOption(QFontDialog::DontUseNativeDialog);
    ShowActive(dialog);
    EXPECT_GT(TextsOf(dialog).size(), 10);
    ExpectNoEnglish(dialog);
    SavePicture(dialog, "QFontDialog");
}

TEST_F(SwedishTextsTest, CoverTheMenusOfFields)
{
    QLineEdit line("text");
    CheckContextMenu(line, 7);
    QPlainTextEdit lines("text");
    lines.viewport()->setFocus();
    CheckContextMenu(*lines.viewport(), 6);
    QScrollBar bar;
    bar.setRange(0, 10);
    CheckContextMenu(bar, 7);
    QSpinBox number;
    CheckContextMenu(number, 9);
}

TEST_F(SwedishTextsTest, NameTheKeys)
{
    const auto name = [](QKeySequence keys) {
        return keys.toString(QKeySequence::NativeText).toStdString();
    };
    EXPECT_EQ(name(Qt::CTRL | Qt::SHIFT | Qt::Key_N), "Ctrl+Skift+N");
    EXPECT_EQ(name(Qt::Key_Delete), "Del");
    EXPECT_EQ(name(Qt::ALT | Qt::Key_Space), "Alt+Blanksteg");
    EXPECT_EQ(name(Qt::Key_F5), "F5");
    EXPECT_EQ(name(Qt::Key_Left), "Vänster");
    EXPECT_EQ(name(Qt::Key_PageUp), "PgUp");
    EXPECT_EQ(name(Qt::Key_Backspace), "Backsteg");
}

TEST_F(SwedishTextsTest, KeepThePlacesForValues)
{
    QMessageBox box;
    const QString text = QFileDialog::tr("%1 already exists.\nDo you want to replace it?");
    EXPECT_EQ(text.arg("/a/b").toStdString(), "/a/b finns redan.\nVill du ersätta den?");
}

} // namespace
} // namespace quillon::test
