// quillonc show: the whole model of a project, for people and for scripts.
#include "cli/calls.h"
#include "cli/console_ask.h"
#include "cli/open_project.h"
#include "cli/project_json.h"
#include "helpers/line_breaks.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

namespace quillon::cli {

namespace {

/// A text of several lines is on lines of its own, set in, so that it can't be taken for a key.
void PrintValue(std::ostream& out, const Text& key, const Text& value)
{
    if (value.find_first_of("\r\n") == Text::npos) {
        out << key << " = " << value << "\n";
        return;
    }
    out << key << " =\n";
    for (const Text& line : SplitLines(value))
        out << "    " << line << "\n";
}

void PrintRow(std::ostream& out, const Json& row)
{
    const char* separator = "";
    for (const Json& column : row)
        out << std::exchange(separator, ";") << column.get<Text>();
    out << "\n";
}

void PrintSection(std::ostream& out, const Text& name, const Json& section)
{
    out << "[" << name << "]\n";
    if (section.is_object())
        for (const auto& [key, value] : section.items())
            PrintValue(out, key, ValueText(value));
    else if (section.is_string() && !section.get<Text>().empty())
        out << section.get<Text>() << "\n";
    else if (section.is_array())
        for (const Json& row : section)
            PrintRow(out, row);
    out << "\n";
}

} // namespace

Exit ShowProject(const CallContext& context)
{
    const Text path = context.PathOperand(0);
    ConsoleAsk ask(nullptr, context.err);
    Session session = NewSession(context.host, ask, context.toolFolder);
    const Opened opened = OpenProject(session, path);
    if (opened == Opened::InPart)
        context.err << PartlyReadText(path) << "\n";

    Json whole = {{"ProjectFileName", path}, {"isWhole", opened == Opened::Whole}};
    const Json sections = ProjectJson(session.project);
    if (context.WantsJson()) {
        whole.update(sections);
        return context.PrintJson(whole, Exit::Done);
    }
    for (const auto& [name, section] : sections.items())
        PrintSection(context.out, name, section);
    return Exit::Done;
}

} // namespace quillon::cli
