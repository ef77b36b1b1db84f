// The files that an import came upon and did not add, with the reason of each.
#pragma once

#include "importers/import_work.h"
#include "ui/kit/Form.h"

class QTreeWidget;

namespace quillon {

class DlgNotAddedFiles : public Form {
public:
    DlgNotAddedFiles(const std::vector<NotAddedFile>& files, QWidget* parent);

    QTreeWidget* ListOfFiles = nullptr;
};

/// Opens the list of files that were not added. Does nothing where the user has stopped the import,
/// or where the list has no file that the user has to see to.
void ShowNotAddedFiles(const ImportResult& result, QWidget* parent);

} // namespace quillon
