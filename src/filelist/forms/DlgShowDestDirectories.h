// All destinations of the file list, to look over.
#pragma once

#include "project/file_list.h"
#include "ui/kit/Form.h"

class QLabel;
class QListWidget;

namespace quillon {

class DlgShowDestDirectories : public Form {
public:
    explicit DlgShowDestDirectories(QWidget* parent);

    void FillListboxWithDirectories(const FileList& files);

    QListWidget* lbDirectories = nullptr;
    QLabel* sNrDirs = nullptr;
};

} // namespace quillon
