// The import of a Visual Basic 5.0 project.
#pragma once

#include "importers/forms/VbProjectForm.h"
#include "importers/import_vb5.h"

namespace quillon {

class DlgImportVB5Project : public VbProjectForm {
public:
    DlgImportVB5Project(const ImportContext& context, QWidget* parent);

protected:
    ImportResult Import(const ImportWork& work) override;

private:
    Piece MakeOptions();
    void SelectVBP() override;
    void SelectEXE() override;

    Vb5Choices choices_;
};

} // namespace quillon
