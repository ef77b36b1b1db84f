// A page of text: welcome, information, before and after the installation.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/previews.h"

namespace quillon {

class InstDlgGeneral : public InstDlg {
public:
    InstDlgGeneral(const GeneralPreview& page, Session& session, QWidget* parent);

    RunningText* sText = nullptr;
};

} // namespace quillon
