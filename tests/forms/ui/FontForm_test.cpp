#include "ui/dialogs/FontForm.h"

#include "support/window_test.h"
#include "ui/controls/ColourButton.h"

namespace quillon::test {
namespace {

class FontFormTest : public WindowTest {
protected:
    /// What a size becomes that is typed in the place of `stored`; an empty one is taken away.
    Integer SizeAfter(Integer stored, const Text& typed)
    {
        FontForm form({.name = "Arial", .size = stored}, ask, nullptr);
        ShowActive(form);
        TypeOver(*form.ComboFontSize, typed);
        Click(form, "cmdOK");
        return form.Chosen.size;
    }

    static void TypeOver(QComboBox& list, const Text& text)
    {
        list.setFocus();
        list.lineEdit()->selectAll();
        QTest::keyClick(list.lineEdit(), Qt::Key_Delete);
        TypeKeys(*list.lineEdit(), text);
    }

    const FontChoice ofProject{.name = "Arial", .size = 10, .maxNameLength = 199};
};

TEST_F(FontFormTest, ShowsTheFontThatIsToBeChanged)
{
    FontForm form({.name = "Saknas Sans", .size = 13, .isItalic = true, .colour = 0x0000FF}, ask,
                  nullptr);
    ShowActive(form);
    EXPECT_EQ(form.windowTitle(), "Teckensnitt");
    EXPECT_EQ(form.ComboFontName->currentText(), "Saknas Sans");
    EXPECT_EQ(form.ComboFontSize->currentText(), "13");
    EXPECT_FALSE(form.cBold->isChecked());
    EXPECT_TRUE(form.cItalic->isChecked());
    EXPECT_EQ(form.cmdColor->GetColour(), 0x0000FF);
    EXPECT_TRUE(form.cmdColor->isVisible());
    EXPECT_FALSE(form.cUnderline->isVisible() || form.cStrikeThrough->isVisible());
    EXPECT_EQ(form.sSample->font().pointSize(), 13);
    EXPECT_TRUE(form.sSample->font().italic());
    FontForm formatted({.name = "Arial", .size = 10, .isUnderlined = true, .isStruckOut = false},
                       ask, nullptr);
    ShowActive(formatted);
    EXPECT_TRUE(formatted.cUnderline->isVisible() && formatted.cUnderline->isChecked());
    EXPECT_TRUE(formatted.cStrikeThrough->isVisible());
    EXPECT_FALSE(formatted.cStrikeThrough->isChecked() || formatted.cmdColor->isVisible());
}

TEST_F(FontFormTest, AnswersWithWhatIsChosen)
{
    const FontChoice current{.name = "Arial",
                             .size = 10,
                             .isBold = true,
                             .isUnderlined = false,
                             .isStruckOut = false,
                             .colour = 0};
    FontForm form(current, ask, nullptr);
    ShowActive(form);
    TypeOver(*form.ComboFontName, " Saknas Sans ");
    TypeOver(*form.ComboFontSize, "24");
    for (const char* box : {"cBold", "cItalic", "cUnderline", "cStrikeThrough"})
        Click(form, box);
    ask.colours = {0x00FF00};
    Click(form, "cmdColor");
    EXPECT_EQ(form.sSample->font().pointSize(), 24);
    EXPECT_EQ(form.Chosen, current) << "nothing before OK";
    Click(form, "cmdOK");
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(form.Chosen, (FontChoice{.name = "Saknas Sans",
                                       .size = 24,
                                       .isItalic = true,
                                       .isUnderlined = true,
                                       .isStruckOut = true,
                                       .colour = 0x00FF00}));
    FontForm untouched(ofProject, ask, nullptr);
    ShowActive(untouched);
    TypeOver(*untouched.ComboFontName, "");
    Click(untouched, "cmdOK");
    EXPECT_EQ(untouched.Chosen, ofProject) << "no name is no font";
    FontForm cancelled(ofProject, ask, nullptr);
    ShowActive(cancelled);
    Click(cancelled, "cBold");
    Click(cancelled, "cmdCancel");
    EXPECT_FALSE(cancelled.OK);
    EXPECT_EQ(cancelled.Chosen, ofProject);
}

TEST_F(FontFormTest, BoundsASizeThatIsTyped)
{
    EXPECT_EQ(SizeAfter(10, "1"), 1);
    EXPECT_EQ(SizeAfter(10, "200"), 200);
    EXPECT_EQ(SizeAfter(10, "0"), 1);
    EXPECT_EQ(SizeAfter(10, "201"), 200);
    EXPECT_EQ(SizeAfter(10, "999"), 200);
    EXPECT_EQ(SizeAfter(10, "1000"), 100) << "there is no room for the last digit";
}

TEST_F(FontFormTest, TakesASizeAsItIsTypedAlsoWhereALongerOneIsInTheList)
{
    for (const Integer size : std::initializer_list<Integer>{1, 2, 3, 4, 7})
        EXPECT_EQ(SizeAfter(10, FromQt(QString::number(size))), size);
}

TEST_F(FontFormTest, KeepsASizeThatNobodyChoosesAnotherFor)
{
    for (const Integer stored : std::initializer_list<Integer>{0, -12, 300, 32767, 13}) {
        FontForm form({.name = "Arial", .size = stored}, ask, nullptr);
        ShowActive(form);
        Click(form, "cItalic");
        EXPECT_GT(form.sSample->font().pointSize(), 0) << "the sample can be seen";
        EXPECT_LE(form.sSample->font().pointSize(), 200);
        Click(form, "cmdOK");
        EXPECT_EQ(form.Chosen.size, stored);
        EXPECT_EQ(SizeAfter(stored, ""), stored) << "emptied";
        EXPECT_EQ(SizeAfter(stored, "12"), 12);
    }
}

TEST_F(FontFormTest, TakesNoCharacterThatAProjectCantHold)
{
    FontForm form(ofProject, ask, nullptr);
    ShowActive(form);
    TypeOver(*form.ComboFontName, "Ωå");
    EXPECT_EQ(form.ComboFontName->currentText(), "å");
}

TEST_F(FontFormTest, RefusesAFamilyWhoseNameAProjectCantHold)
{
    FontForm form(ofProject, ask, nullptr);
    ShowActive(form);
    // As a choice in the list, which holds the machine's own families.
    form.ComboFontName->setEditText("ＭＳ ゴシック");
    ask.Expect(
        {BoxKind::Critical, "Ogiltiga tecken hittade",
         "Teckensnittet 'ＭＳ ゴシック' kan ej väljas. Namnet innehåller tecken som inte kan "
         "lagras i ett projekt. Välj ett annat teckensnitt."});
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.OK);
    EXPECT_EQ(form.Chosen, ofProject);
    EXPECT_TRUE(form.ComboFontName->hasFocus());
    form.ComboFontName->setEditText("Courier New");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Chosen.name, "Courier New");
}

TEST_F(FontFormTest, RefusesANameThatIsTooLongForAProjectAndCutsNone)
{
    FontForm form(ofProject, ask, nullptr);
    ShowActive(form);
    form.ComboFontName->setEditText(QString(200, QChar(0xE5)));
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(QToolTip::text(), "Texten är för lång. Här får högst 199 tecken stå.");
    EXPECT_EQ(form.ComboFontName->currentText().size(), 200);
    form.ComboFontName->setEditText(QString(199, QChar(0xE5)));
    Click(form, "cmdOK");
    EXPECT_TRUE(form.OK);
    EXPECT_EQ(form.Chosen.name, FromQt(QString(199, QChar(0xE5))));
}

// The text of the RTF box, whose file holds all letters.
TEST_F(FontFormTest, TakesAnyNameThatGoesIntoNoProject)
{
    FontForm form({.name = "Arial", .size = 10, .isUnderlined = false}, ask, nullptr);
    ShowActive(form);
    const Text name = FromQt(QString(250, 'x')) + "Ω";
    TypeOver(*form.ComboFontName, "Ω");
    EXPECT_EQ(form.ComboFontName->currentText(), "Ω");
    form.ComboFontName->setEditText(ToQt(name));
    Click(form, "cmdOK");
    EXPECT_EQ(form.Chosen.name, name);
}

} // namespace
} // namespace quillon::test
