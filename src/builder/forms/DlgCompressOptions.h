// How the files of the package are compressed.
#pragma once

#include "builder/create_form.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgCompressOptions : public EditorForm {
public:
    DlgCompressOptions(Session& session, CreateForm& create, QWidget* parent);

    QCheckBox* cUseCompression = nullptr;
    QCheckBox* cKeepCompressedFilesOneAndOne = nullptr;
    QCheckBox* cSmallContainer = nullptr;

protected:
    void Store() override;

private:
    void ShowOptions();

    CreateForm& create_;
    CompressOptionsForm options_;
};

} // namespace quillon
