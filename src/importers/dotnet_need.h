// Which run-time of .NET a program asks for.
#pragma once

#include "helpers/program_info.h"

#include <string_view>

namespace quillon {

struct DotNetNeed {
    enum class Kind {
        None,
        Framework, // part of Windows, or installed by its own setup
        Core,      // .NET 5 and later, .NET Core
        Contained  // the program brings its run-time along
    };
    Kind kind = Kind::None;
    Text name;    // ".NET Framework", "Microsoft.WindowsDesktop.App"
    Text version; // "4.7.2"; empty where nothing says it
    // What could not be read of the program's run-time file, in words.
    Text damage;

    bool operator==(const DotNetNeed&) const = default;
};

/// By the file `<program>.runtimeconfig.json` that a build of .NET leaves beside the program.
DotNetNeed NeedOfRuntimeConfig(std::string_view json);

/// By the program's own header.
DotNetNeed NeedOfProgram(const ProgramInfo& info);

/// "Programmet behöver .NET Framework 4.7.2."; empty where it needs none.
Text DotNetNeedText(const DotNetNeed& need);

} // namespace quillon
