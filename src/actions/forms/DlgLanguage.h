// The language of the setup: one of the files beside the tool.
#pragma once

#include "actions/language_files.h"
#include "ui/kit/Form.h"

class QListWidget;

namespace quillon {

class DlgLanguage : public EditorForm {
public:
    DlgLanguage(Session& session, QWidget* parent);

    QListWidget* FileListX = nullptr;
    QPushButton* cmdAddLanguage = nullptr;
    QPushButton* cmdEditLanguage = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    /// Lists the files again, with this one selected; none where it is not among them.
    void ShowFiles(const Text& selected);
    LanguageFolders Folders() const;
    Text SelectedFile() const;
    void AddLanguage();
};

void ShowLanguage(Session& session, QWidget* parent);

} // namespace quillon
