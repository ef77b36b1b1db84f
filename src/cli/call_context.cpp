#include "cli/call_context.h"

#include "helpers/drive_path.h"
#include "helpers/number_text.h"
#include "helpers/windows_path.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace quillon::cli {

Text CallContext::Path(const std::string& argument) const
{
    if (argument.empty())
        throw UsageError{"En sökväg är tom."};
    if (IsWindowsPath(argument))
        return ResolvePath(argument);
    const auto path = toWindows(argument);
    if (!path)
        throw UsageError{"Sökvägen '" + argument +
                         "' kan ej skrivas som en Windows-sökväg; den har ett omvänt snedstreck."};
    return *path;
}

std::string CallContext::RequireValue(const char* option) const
{
    return arguments.Required(option);
}

Exit CallContext::PrintJson(Json object, Exit exit) const
{
    object["exitCode"] = static_cast<int>(exit);
    out << object.dump(2, ' ', false, Json::error_handler_t::replace) << "\n";
    return exit;
}

Exit CallContext::Fail(const Text& text, Exit exit) const
{
    err << text << "\n";
    if (WantsJson())
        PrintJson({{"error", text}}, exit);
    return exit;
}

} // namespace quillon::cli
