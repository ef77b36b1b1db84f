#include "design/forms/DlgSound.h"

#include "design/forms/choose_file.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 50;

} // namespace

DlgSound::DlgSound(Session& session, QWidget* parent)
    : DesignEditor("DlgSound", "Ljud", session, parent)
{
    FileLabel(NAMED(sBackSoundFilenameX), session.project.DesSound.BackSoundFilename);
    Button(NAMED(cmdSelectBackSound), "&Välj ljudfil...", [this] {
        Text& folder = session_.Settings.Directories.LastSoundDir;
        if (const auto path = ChooseDesignFile(DesignFile::Sound, folder, session_.ask))
            sBackSoundFilenameX->ShowPath(ToQt(*path));
    });
    Button(NAMED(cmdReset), "&Återställ", [this] { sBackSoundFilenameX->ShowPath({}); });
    Arrange(VBox({
        Frame("Bakgrundsljud", {MinWidth(kPathCharacters, sBackSoundFilenameX),
                                HBox({cmdSelectBackSound, cmdReset, Stretch()})}),
        Stretch(),
        OkCancel(),
    }));
}

} // namespace quillon
