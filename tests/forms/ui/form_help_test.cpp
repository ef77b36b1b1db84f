#include "ui/dialogs/form_help.h"

#include <QtWidgets>
#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(HelpTopicsOf, AreTheFormAndWhatIsExplainedOfItInTheOrderOfTheTabKey)
{
    QWidget form;
    form.setWindowTitle("Titel");
    form.setWhatsThis("Om det hela.");
    auto* box = Explained(new QCheckBox("&Ruta && kryss"), "Om rutan.");
    auto* button = Explained(new QPushButton("&Välj..."), "Om valet.");
    auto* field = Explained(new QLineEdit, "Om namnet.");
    Arrange(&form, VBox({box, new QCheckBox("Utan ord"), button, Fields({{"&Namn:", field}})}));
    EXPECT_THAT(HelpTopicsOf(form),
                ElementsAre(HelpTopic{"Titel", "Om det hela."},
                            HelpTopic{"Ruta & kryss", "Om rutan."}, HelpTopic{"Välj", "Om valet."},
                            HelpTopic{"Namn", "Om namnet."}));
    EXPECT_EQ(box->toolTip(), "Om rutan.");
    EXPECT_EQ(box->whatsThis(), "Om rutan.");
}

TEST(HelpTopicsOf, AreNoneWhereNothingIsExplained)
{
    QWidget form;
    Arrange(&form, VBox({new QCheckBox("Utan ord")}));
    EXPECT_THAT(HelpTopicsOf(form), IsEmpty());
}

} // namespace
} // namespace quillon::test
