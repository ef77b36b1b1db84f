#include "design/forms/DlgDesBackground.h"

#include "design/background.h"
#include "design/forms/choose_file.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <algorithm>
#include <array>

#include <QtWidgets>

namespace quillon {

namespace {

using section::DesBackground;

constexpr int kPathCharacters = 50;

// The captions by the values of `BlendDirection`.
constexpr auto kBlendDirections = [] {
    std::array<const char*, kMaxBlendDirection + 1> captions{};
    captions[kNoBlend] = "Ingen toning";
    captions[BlendDirectionOf(BlendStyle::ToTheRight)] = "Tona höger";
    captions[BlendDirectionOf(BlendStyle::ToTheLeft)] = "Tona vänster";
    captions[BlendDirectionOf(BlendStyle::Upwards)] = "Tona upp";
    captions[BlendDirectionOf(BlendStyle::Downwards)] = "Tona ned";
    captions[BlendDirectionOf(BlendStyle::Outwards)] = "Rektangulär toning";
    return captions;
}();
static_assert(std::ranges::find(kBlendDirections, nullptr) == kBlendDirections.end());

} // namespace

DlgDesBackground::DlgDesBackground(Session& session, QWidget* parent)
    : DesignEditor("DlgDesBackground", "Bakgrund", session, parent),
      background_(session.project.DesBackground)
{
    OptionOf(background_.Type, {NAMED(oColor), "&Färg", Integer(BackgroundType::Colours)});
    OptionOf(background_.Type, {NAMED(oPicture), "B&ild", Integer(BackgroundType::Picture)});
    // Whatever is no colour is painted as a picture.
    oPicture->setChecked(background_.Type != Integer(BackgroundType::Colours));
    // Two options that are in two frames.
    auto* kinds = new QButtonGroup(this);
    kinds->addButton(oColor);
    kinds->addButton(oPicture);
    Arrange(VBox({oColor, ColourFrame(), oPicture, PictureFrame(), Stretch(), OkCancel()}));
}

Piece DlgDesBackground::ColourFrame()
{
    ColourOf(NAMED(cmdBackColor), "Färg &1...", background_.BackColor1);
    ColourOf(NAMED(cmdBackColor2), "Färg &2...", background_.BackColor2);
    Choice(NAMED(ComboBlendDirection), kBlendDirections, background_.BlendDirection);
    Field(NAMED(tBlendDepth), background_.BlendDepth, MaxTextLength(&DesBackground::BlendDepth));
    Named(NAMED(labBlendDepth), new QLabel("Toningens &djup (%):"));
    labBlendDepth->setBuddy(tBlendDepth);
    tBlendDepth->setAccessibleName("Toningens djup i procent");
    EnableDepth();
    connect(ComboBlendDirection, &QComboBox::currentIndexChanged, this,
            [this] { ChooseDirection(); });
    // The one that is shown can be chosen, too.
    connect(ComboBlendDirection, &QComboBox::activated, this, [this] { ChooseDirection(); });
    return Frame({}, {HBox({cmdBackColor, cmdBackColor2, Stretch()}),
                      Fields({{"&Toning:", ComboBlendDirection}}),
                      HBox({labBlendDepth, tBlendDepth, Stretch()})});
}

Piece DlgDesBackground::PictureFrame()
{
    FileLabel(NAMED(sPictureFileName), background_.PictureFilename);
    Button(NAMED(cmdSelectPicture), "&Välj bild...", [this] {
        Text& folder = session_.Settings.Directories.LastPictureDir;
        if (const auto path =
                ChooseDesignFile(DesignFile::BackgroundPicture, folder, session_.ask)) {
            sPictureFileName->ShowPath(ToQt(*path));
            oPicture->setChecked(true);
        }
    });
    Button(NAMED(cmdReset), "&Återställ", [this] { sPictureFileName->ShowPath({}); });
    Check(NAMED(cStretchPictureToScreen), "&Skala bilden till hela skärmen",
          background_.StretchPicture);
    return Frame({}, {MinWidth(kPathCharacters, sPictureFileName),
                      HBox({cmdSelectPicture, cmdReset, Stretch()}), cStretchPictureToScreen});
}

void DlgDesBackground::EnableDepth()
{
    const bool isBlend = ComboBlendDirection->currentIndex() > 0;
    labBlendDepth->setEnabled(isBlend);
    tBlendDepth->setEnabled(isBlend);
}

// Kept: trying a direction marks the project changed, also where Cancel follows.
void DlgDesBackground::ChooseDirection()
{
    EnableDepth();
    FillDepth();
    session_.state.ProjectIsDirty = kOn;
}

// An empty depth of the record means the same, and stays until a direction is chosen.
void DlgDesBackground::FillDepth()
{
    if (tBlendDepth->isEnabled() && tBlendDepth->text().isEmpty())
        tBlendDepth->setText("100");
}

// A file name survives only with the picture option.
bool DlgDesBackground::MayClose()
{
    if (oColor->isChecked())
        sPictureFileName->ShowPath({});
    return true;
}

} // namespace quillon
