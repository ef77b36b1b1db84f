#include "design/forms/DlgDesLogotype.h"

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

DlgDesLogotype::DlgDesLogotype(Session& session, QWidget* parent)
    : DesignEditor("DlgDesLogotype", "Logotype", session, parent)
{
    section::DesLogotype& logotype = session.project.DesLogotype;
    Check(NAMED(cTransparentBkg), "&Transparent bakgrund", logotype.UseTransparentBkg);
    TransparentColorList(NAMED(ComboTransparentColor), logotype.TransparentColorNr);
    NumberField(NAMED(tLogotypeWMFWidth), logotype.LogotypeWMFWidth, CheckedLogotypeWMFWidth,
                OnOk::ChecksAlways);
    NumberField(NAMED(tLogotypeWMFHeight), logotype.LogotypeWMFHeight, CheckedLogotypeWMFHeight,
                OnOk::ChecksAlways);
    Piece sides = Options(logotype.LogotypeAlignment,
                          {{NAMED(oRight), "Till &höger", Integer(DesignAlignment::End)},
                           {NAMED(oLeft), "Till &vänster", Integer(DesignAlignment::Begin)}});
    Arrange(VBox({
        FileFrame(),
        HBox({
            Frame("Placering", {sides, Stretch()}),
            Frame("Transparens",
                  {cTransparentBkg, Fields({{"Transparent &färg:", ComboTransparentColor}}),
                   Stretch()}),
            Frame("Metafilens storlek",
                  {Fields({{"&Bredd:", tLogotypeWMFWidth}, {"H&öjd:", tLogotypeWMFHeight}}),
                   Stretch()}),
        }),
        Stretch(),
        OkCancel(),
    }));
}

Piece DlgDesLogotype::FileFrame()
{
    FileLabel(NAMED(sFilename), session_.project.DesLogotype.LogotypeFilename);
    Button(NAMED(cmdSelectPicture), "V&älj bild...", [this] {
        Text& folder = session_.Settings.Directories.LastPictureDir;
        if (const auto path = ChooseDesignFile(DesignFile::FreePicture, folder, session_.ask))
            sFilename->ShowPath(ToQt(*path));
    });
    Button(NAMED(cmdReset), "&Återställ", [this] { sFilename->ShowPath({}); });
    return Frame("Bildfil", {MinWidth(kPathCharacters, sFilename),
                             HBox({cmdSelectPicture, cmdReset, Stretch()})});
}

} // namespace quillon
