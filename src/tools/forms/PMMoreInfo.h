// The version data of a listed project, to look at.
#pragma once

#include "tools/project_list.h"
#include "ui/kit/Form.h"

namespace quillon {

class PMMoreInfo : public Form {
public:
    PMMoreInfo(const Text& projectFile, const ProjectVersionData& version, QWidget* parent);

    QLineEdit* sProjectFName = nullptr;
    QLineEdit* sVerOrganizationX = nullptr;
    QLineEdit* sVerProductNameX = nullptr;
    QLineEdit* sVerDescriptionX = nullptr;
    QLineEdit* sVerProductVersionX = nullptr;
    QLineEdit* sVerCommentsX = nullptr;
};

} // namespace quillon
