#include "builder/forms/DlgCompressOptions.h"

#include <QtWidgets>

namespace quillon {

DlgCompressOptions::DlgCompressOptions(Session& session, CreateForm& create, QWidget* parent)
    : EditorForm("DlgCompressOptions", "Komprimering", session, parent), create_(create),
      options_(OpenCompressOptions(create))
{
    Arrange(VBox({
        Frame("Komprimering av filer",
              {
                  Check01(NAMED(cUseCompression), "&Använd komprimering", options_.cUseCompression),
                  Check01(NAMED(cKeepCompressedFilesOneAndOne), "&Slå ej samman filer",
                          options_.cKeepCompressedFilesOneAndOne),
                  Check01(NAMED(cSmallContainer), "&Minsta möjliga storlek (Zstandard)",
                          options_.cSmallContainer),
                  Note("Minsta möjliga storlek gäller för CD/DVD. FILEDATA.DAT blir mindre men "
                       "tar längre tid att skapa, och andra program kan inte öppna den. Det går "
                       "ej tillsammans med ett lösenord."),
              }),
        Stretch(),
        OkCancel(),
    }));
    connect(cUseCompression, &QCheckBox::clicked, this, [this](bool checked) {
        options_.cUseCompression = checked ? 1 : 0;
        ShowOptions();
    });
    connect(cSmallContainer, &QCheckBox::clicked, this,
            [this](bool checked) { options_.cSmallContainer = checked ? 1 : 0; });
    connect(cKeepCompressedFilesOneAndOne, &QCheckBox::clicked, this, [this](bool checked) {
        ClickKeepCompressedFilesOneAndOne(options_, checked ? 1 : 0);
        ShowOptions();
    });
    ShowOptions();
}

void DlgCompressOptions::ShowOptions()
{
    cUseCompression->setChecked(options_.cUseCompression != 0);
    cUseCompression->setEnabled(options_.isCUseCompressionEnabled);
    cKeepCompressedFilesOneAndOne->setChecked(options_.cKeepCompressedFilesOneAndOne != 0);
    cKeepCompressedFilesOneAndOne->setEnabled(options_.isCKeepCompressedFilesOneAndOneEnabled);
    cSmallContainer->setChecked(options_.cSmallContainer != 0);
    cSmallContainer->setEnabled(options_.IsCSmallContainerEnabled());
}

void DlgCompressOptions::Store()
{
    StoreCompressOptions(options_, create_);
    EditorForm::Store();
}

} // namespace quillon
