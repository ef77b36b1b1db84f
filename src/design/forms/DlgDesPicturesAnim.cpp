#include "design/forms/DlgDesPicturesAnim.h"

#include "design/changing_pictures.h"
#include "design/forms/choose_file.h"
#include "design/number_fields.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 50;

} // namespace

DlgDesPicturesAnim::DlgDesPicturesAnim(Session& session, QWidget* parent)
    : DesignEditor("DlgDesPicturesAnim", "Växlingsbara bilder", session, parent),
      pictures_(session.project.DesPicturesAnim)
{
    Piece list = ListFrame();
    Check(NAMED(cStretchPicture), "&Skala bilderna", pictures_.StretchPicture);
    NumberField(NAMED(tWidth), pictures_.PictureWidth, CheckedPictureSize, OnOk::ChecksAlways);
    NumberField(NAMED(tHeight), pictures_.PictureHeight, CheckedPictureSize, OnOk::ChecksAlways);
    NumberField(NAMED(tIntervalSeconds), pictures_.IntervalSeconds, CheckedIntervalSeconds,
                OnOk::ChecksAlways);
    Arrange(VBox({
        Growing(list),
        HBox({
            Frame("Storlek (bildpunkter)",
                  {cStretchPicture, Fields({{"&Bredd:", tWidth}, {"&Höjd:", tHeight}})}),
            Frame("Tid", {Fields({{"S&ekunder per bild:", tIntervalSeconds}}), Stretch()}),
            Stretch(),
        }),
        OkCancel(),
    }));
}

Piece DlgDesPicturesAnim::ListFrame()
{
    Named(NAMED(lbPictureList), new QListWidget, "Bilder");
    for (const Text& file : ChangingPictures(pictures_))
        lbPictureList->addItem(ToQt(file));
    Button(NAMED(cmdAddPicture), "&Lägg till...", [this] { AddPicture(); });
    Button(NAMED(cmdRemovePicture), "&Ta bort", [this] { RemovePicture(); });
    return Frame("Bilder", {Growing(MinWidth(kPathCharacters, lbPictureList)),
                            HBox({cmdAddPicture, cmdRemovePicture, Stretch()})});
}

void DlgDesPicturesAnim::AddPicture()
{
    if (!MayAddChangingPicture(static_cast<std::size_t>(lbPictureList->count()), session_.ask))
        return;
    Text& folder = session_.Settings.Directories.LastPictureDir;
    if (const auto path = ChooseDesignFile(DesignFile::ChangingPicture, folder, session_.ask)) {
        lbPictureList->addItem(ToQt(*path));
        lbPictureList->setCurrentRow(lbPictureList->count() - 1);
    }
}

void DlgDesPicturesAnim::RemovePicture()
{
    // A row that only has the keyboard is not selected.
    for (QListWidgetItem* item : lbPictureList->selectedItems())
        delete item;
}

void DlgDesPicturesAnim::Store()
{
    std::vector<Text> files;
    for (int row = 0; row < lbPictureList->count(); ++row)
        files.push_back(FromQt(lbPictureList->item(row)->text()));
    SetChangingPictures(pictures_, files);
    DesignEditor::Store();
}

} // namespace quillon
