#include "design/forms/DlgDesPictures.h"

#include "design/forms/choose_file.h"
#include "design/number_fields.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 50;

} // namespace

DlgDesPictures::DlgDesPictures(std::size_t index, Session& session, QWidget* parent)
    : DesignEditor("DlgDesPictures", "Bild " + NumberText(std::int64_t(index) + 1), session,
                   parent),
      picture_(session.project.DesPictures.Pictures[index])
{
    section::DesPictures& shared = session.project.DesPictures;
    Check(NAMED(cTransparentBkg), "&Transparent bakgrund", picture_.UseTransparentBkg);
    TransparentColorList(NAMED(ComboTransparentColor), shared.TransparentColorNr);
    Check01(NAMED(cHidePicturesWhenDialogsShowed), "&Dölj bilderna när dialogrutor visas",
            shared.HidePicturesWhenDialogsShowed);
    Piece file = FileFrame();
    Piece size = SizeFrame();
    connect(cTransparentBkg, &QCheckBox::toggled, this, [this] { EnableStretching(); });
    EnableStretching();
    Arrange(VBox({
        file,
        HBox({
            Frame("Transparens",
                  {cTransparentBkg, Fields({{"Transparent &färg:", ComboTransparentColor}}),
                   Stretch()}),
            size,
        }),
        cHidePicturesWhenDialogsShowed,
        Stretch(),
        OkCancel(),
    }));
}

Piece DlgDesPictures::FileFrame()
{
    FileLabel(NAMED(sFilename), picture_.PictureFilename);
    Button(NAMED(cmdSelectPicture), "&Välj bild...", [this] {
        Text& folder = session_.Settings.Directories.LastPictureDir;
        if (const auto path = ChooseDesignFile(DesignFile::FreePicture, folder, session_.ask))
            sFilename->ShowPath(ToQt(*path));
    });
    Button(NAMED(cmdReset), "&Återställ", [this] { Reset(); });
    return Frame("Bildfil", {MinWidth(kPathCharacters, sFilename),
                             HBox({cmdSelectPicture, cmdReset, Stretch()})});
}

Piece DlgDesPictures::SizeFrame()
{
    Check(NAMED(cStretchPicture), "&Skala bilden", picture_.StretchPicture);
    NumberField(NAMED(tWidth), picture_.PictureWidth, CheckedPictureSize);
    NumberField(NAMED(tHeight), picture_.PictureHeight, CheckedPictureSize);
    Named(NAMED(LabelW), new QLabel("&Bredd:"));
    Named(NAMED(LabelH), new QLabel("&Höjd:"));
    LabelW->setBuddy(tWidth);
    LabelH->setBuddy(tHeight);
    tWidth->setAccessibleName("Bredd");
    tHeight->setAccessibleName("Höjd");
    return Frame("Storlek (bildpunkter)", {cStretchPicture, HBox({LabelW, tWidth, Stretch()}),
                                           HBox({LabelH, tHeight, Stretch()}), Stretch()});
}

// A transparent picture has its own size, since scaling would mix its transparent colour with
// others.
void DlgDesPictures::EnableStretching()
{
    const bool isTransparent = cTransparentBkg->isChecked();
    if (isTransparent)
        cStretchPicture->setChecked(false);
    for (QWidget* control :
         std::initializer_list<QWidget*>{cStretchPicture, tWidth, tHeight, LabelW, LabelH})
        control->setEnabled(!isTransparent);
}

void DlgDesPictures::Reset()
{
    sFilename->ShowPath({});
    cTransparentBkg->setChecked(false);
    cStretchPicture->setChecked(false);
    tWidth->setText("200");
    tHeight->setText("100");
}

} // namespace quillon
