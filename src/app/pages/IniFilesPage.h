// The tab "INI-filer": the INI entries of the setup as one free text.
#pragma once

#include "shell/session.h"
#include "ui/kit/Page.h"

namespace quillon {

class IniFilesPage : public Page {
public:
    explicit IniFilesPage(Session& session);

    void ShowSession() override;
    QPlainTextEdit* Editor() override { return editINIList; }

private:
    void AddFile();
    void AddSection();
    void AddValue();
    void AddVariable();
    void Append(const Text& lines);

    Session& session_;
    QPlainTextEdit* editINIList = nullptr;
    QPushButton* cmdNewINIfile = nullptr;
    QPushButton* cmdAddINIsection = nullptr;
    QPushButton* cmdAddINIvalue = nullptr;
    QPushButton* cmdVariables2 = nullptr;
};

} // namespace quillon
