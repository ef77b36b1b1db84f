#include "project/components.h"

#include <algorithm>

namespace quillon {

bool IsAnyComponentInUse(const Project& project)
{
    const auto& components = project.FileComponents;
    return std::any_of(components.begin(), components.end(),
                       [](const section::FileComponent& component) { return component.Comp != 0; });
}

} // namespace quillon
