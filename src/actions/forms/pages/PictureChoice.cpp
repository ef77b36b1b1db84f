#include "actions/forms/pages/PictureChoice.h"

#include "actions/dialog_bitmap.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/controls/PictureView.h"
#include "ui/controls/picture.h"
#include "ui/kit/form_kit.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

PictureChoice::PictureChoice(const PictureChoiceNames& names, Session& session,
                             std::function<void(const Text&)> onChoice)
    : QGroupBox(QString::fromUtf8(names.caption)), session_(session), onChoice_(std::move(onChoice))
{
    Named(picture_, names.picture, new PictureView, names.caption);
    Named(filename_, names.filename, new PathLabel);
    auto* select = Button(names.select, "&Välj bild...", [this] {
        return ChooseDlgBitmap(session_.Settings.Directories.LastDlgPictureDir, session_.ask);
    });
    auto* standard = Button(names.standard, "S&tandardbild", [this] {
        return StandardDlgBitmap(session_.host.files, session_.options.ToolFolder, session_.ask);
    });
    Arrange(this, VBox({Growing(picture_), filename_, HBox({select, standard, Stretch()})}));
}

QPushButton* PictureChoice::Button(const char* name, const char* caption,
                                   std::function<std::optional<Text>()> choose)
{
    QPushButton* button = nullptr;
    Named(button, name, new QPushButton(QString::fromUtf8(caption)));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, choose = std::move(choose)] {
        if (const auto path = choose()) {
            ShowBitmap(*path);
            onChoice_(*path);
        }
    });
    return button;
}

void PictureChoice::ShowBitmap(const Text& path)
{
    const FileSystem& files = session_.host.files;
    filename_->ShowPath(ToQt(path));
    if (const auto picture = LoadPicture(files, path))
        picture_->ShowPicture(*picture);
    else
        picture_->ShowNote(WhyNoPicture(files, path));
}

} // namespace quillon
