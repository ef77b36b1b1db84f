#include "tools/forms/PMMoreInfo.h"

#include "ui/controls/ShownField.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 56;

} // namespace

PMMoreInfo::PMMoreInfo(const Text& projectFile, const ProjectVersionData& version, QWidget* parent)
    : Form("PMMoreInfo", "Versionsinformation", parent)
{
    Arrange(VBox({
        Frame("Projektfil",
              {MinWidth(kPathCharacters, ShownField(NAMED(sProjectFName), projectFile))}),
        Frame(
            "Version",
            {Fields({
                {"Organisation:", ShownField(NAMED(sVerOrganizationX), version.CompanyName)},
                {"Produktnamn:", ShownField(NAMED(sVerProductNameX), version.ProductName)},
                {"Beskrivning:", ShownField(NAMED(sVerDescriptionX), version.Description)},
                {"Produktversion:", ShownField(NAMED(sVerProductVersionX), version.ProductVersion)},
                {"Kommentarer:", ShownField(NAMED(sVerCommentsX), version.Comments)},
            })}),
        Stretch(),
        OkOnly(),
    }));
    sProjectFName->setAccessibleName("Projektfil");
    cmdOK->setFocus();
}

} // namespace quillon
