#include "importers/vb_project.h"

#include "helpers/number_text.h"

namespace quillon {

namespace {

// A line that was edited by hand may have quotation marks round its value, or round the name alone.
Text WithoutQuotes(std::string_view name)
{
    Text text = TrimBlanks(name);
    if (text.starts_with('"'))
        text.erase(0, 1);
    if (text.ends_with('"'))
        text.pop_back();
    return TrimBlanks(text);
}

Text WithoutFolder(const Text& path)
{
    return path.substr(path.find_last_of("\\/") + 1);
}

} // namespace

std::optional<Text> ActiveXFileIn(std::string_view line)
{
    constexpr std::string_view kObject = "Object=";
    constexpr std::string_view kBeforeName = "; ";
    const std::size_t object = line.find(kObject);
    if (object == std::string_view::npos ||
        line.find(kBeforeName, object + kObject.size()) == std::string_view::npos)
        return std::nullopt;
    // Kept: the name begins after the first such mark of the line, wherever that is.
    Text name = WithoutQuotes(line.substr(line.find(kBeforeName) + kBeforeName.size()));
    if (name.empty())
        return std::nullopt;
    return name;
}

std::optional<VbModule> ModuleIn(std::string_view line)
{
    constexpr std::string_view kModule = "MODULE=";
    const std::size_t place = UpperCase(line).find(kModule);
    if (place == Text::npos)
        return std::nullopt;
    const std::string_view value = line.substr(place + kModule.size());
    const std::size_t mark = value.find(';');
    VbModule module{.name = WithoutQuotes(value.substr(0, mark)), .file = {}};
    if (mark != std::string_view::npos)
        module.file = WithoutFolder(WithoutQuotes(value.substr(mark + 1)));
    return module;
}

Text TooManyReferencesText(const Text& path, const Text& what)
{
    const Text maxCount = NumberText(static_cast<std::int64_t>(kMaxReferences));
    return "Projektfilen '" + path + "' anger fler än " + maxCount + " " + what +
           ". Endast de första " + maxCount + " är lästa.";
}

ActiveXFiles ActiveXFilesOf(const std::vector<Text>& lines)
{
    ActiveXFiles files;
    for (const Text& line : lines) {
        auto name = ActiveXFileIn(line);
        if (!name)
            continue;
        files.isCut = files.names.size() == kMaxReferences;
        if (files.isCut)
            break;
        files.names.push_back(std::move(*name));
    }
    return files;
}

} // namespace quillon
