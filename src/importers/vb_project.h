// What the lines of a Visual Basic 5 or 6 project file (.vbp) name.
#pragma once

#include "helpers/text.h"

#include <optional>
#include <string_view>
#include <vector>

namespace quillon {

/// The ActiveX file that a line names: "Object={GUID}#1.0#0; NAME.OCX" gives "NAME.OCX". Nothing on
/// other lines, and where no file follows the GUID, as for a control of another project.
std::optional<Text> ActiveXFileIn(std::string_view line);

/// "Module=basMain; ..\Common\Main.bas"
struct VbModule {
    Text name; // "basMain"
    Text file; // "Main.bas", without its folder
};
std::optional<VbModule> ModuleIn(std::string_view line);

// No project has as many; a file that names more is no project.
inline constexpr std::size_t kMaxReferences = 1000;

/// The message where a file holds more; `what` is "ActiveX-filer".
Text TooManyReferencesText(const Text& path, const Text& what);

struct ActiveXFiles {
    std::vector<Text> names; // in the order of the file
    bool isCut = false;      // there are more than `kMaxReferences`; the others are passed over
};
ActiveXFiles ActiveXFilesOf(const std::vector<Text>& lines);

} // namespace quillon
