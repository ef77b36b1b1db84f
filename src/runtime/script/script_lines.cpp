#include "runtime/script/script_lines.h"

#include "formats/registry_marks.h"
#include "formats/variable_names.h"
#include "helpers/number_text.h"

#include <algorithm>
#include <span>

namespace quillon {

namespace {

constexpr std::int64_t kMaxExitCode = 65535;
constexpr std::string_view kBlanks = " \t";

struct WordRow {
    const char* name;
    ScriptWord word;
    std::size_t minArguments;
    std::size_t maxArguments;
};

// clang-format off
constexpr WordRow kWords[] = {
    {"MESSAGE",      ScriptWord::Message,      1, 1},
    {"LOG",          ScriptWord::Log,          1, 1},
    {"COPY",         ScriptWord::Copy,         2, 2},
    {"DELETE",       ScriptWord::Delete,       1, 1},
    {"RENAME",       ScriptWord::Rename,       2, 2},
    {"MAKEFOLDER",   ScriptWord::MakeFolder,   1, 1},
    {"REMOVEFOLDER", ScriptWord::RemoveFolder, 1, 1},
    {"INI",          ScriptWord::Ini,          4, 4},
    {"REGISTRY",     ScriptWord::Registry,     1, 1}, // the rest of the line
    {"RUN",          ScriptWord::Run,          1, 2},
    {"RUNHIDDEN",    ScriptWord::RunHidden,    1, 2},
    {"SET",          ScriptWord::Set,          2, 2},
    {"EXIT",         ScriptWord::Exit,         0, 2},
    {"IF",           ScriptWord::If,           2, 4},
    {"ELSE",         ScriptWord::Else,         0, 0},
    {"END",          ScriptWord::End,          0, 0},
};

struct TestRow {
    const char* name;
    ScriptTest test;
};
constexpr TestRow kTests[] = {
    {"FILE",     ScriptTest::File},
    {"FOLDER",   ScriptTest::Folder},
    {"REGISTRY", ScriptTest::Registry},
    {"YES",      ScriptTest::Yes},
};
// clang-format on

struct Part {
    Text text;
    bool isQuoted = false;

    bool Is(std::string_view word) const { return !isQuoted && EqualIgnoreCase(text, word); }
};

// Parts stand between blanks or in quotation marks, of which two stand for one inside. Nothing
// where the marks do not match.
std::optional<std::vector<Part>> PartsOf(std::string_view line)
{
    std::vector<Part> parts;
    for (std::size_t at = 0; (at = line.find_first_not_of(kBlanks, at)) != Text::npos;) {
        Part part;
        if (line[at] != '"') {
            const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
            part.text = line.substr(at, end - at);
            at = end;
            if (part.text.find('"') != Text::npos)
                return std::nullopt;
        } else {
            part.isQuoted = true;
            for (++at;; ++at) {
                const std::size_t mark = line.find('"', at);
                if (mark == Text::npos)
                    return std::nullopt;
                part.text += line.substr(at, mark - at);
                at = mark + 1;
                if (line.substr(at, 1) != "\"")
                    break;
                part.text += '"';
            }
            if (at < line.size() && kBlanks.find(line[at]) == Text::npos)
                return std::nullopt;
        }
        parts.push_back(std::move(part));
    }
    return parts;
}

// A percent sign and a word in capitals that the setup does not know.
bool IsOwnVariable(std::string_view name)
{
    constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    if (name.size() < 2 || name[0] != '%' ||
        name.find_first_not_of(kLetters, 1) != std::string_view::npos || name == kScriptExitCode)
        return false;
    for (const VariableName& known : kVariableNames)
        if (known.name == name)
            return false;
    return true;
}

bool IsExitCode(std::string_view text)
{
    const std::int64_t number = LeadingNumber(text);
    return number >= 1 && number <= kMaxExitCode && NumberText(number) == text;
}

class ScriptReader {
public:
    Script Read(std::string_view text)
    {
        for (const Text& line : SplitLines(text)) {
            command_ = {};
            command_.line = ++line_;
            if (auto reason = Take(TrimBlanks(line)))
                return {{}, ScriptFault{line_, std::move(*reason)}};
        }
        if (!open_.empty())
            return {{}, ScriptFault{script_.commands[open_.back()].line, {Message::ScriptNoEnd}}};
        return std::move(script_);
    }

private:
    using Fault = std::optional<Reason>;

    Fault Take(const Text& line)
    {
        if (line.empty() || line[0] == ';')
            return std::nullopt;
        const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
        const Text name = line.substr(0, end);
        for (const WordRow& row : kWords)
            if (EqualIgnoreCase(row.name, name)) {
                command_.word = row.word;
                return TakeRest(row, line.substr(end));
            }
        return Reason{Message::ScriptUnknown, name};
    }

    Fault TakeRest(const WordRow& row, const Text& rest)
    {
        if (row.word == ScriptWord::Registry)
            return TakeRegistry(TrimBlanks(rest));
        auto parts = PartsOf(rest);
        if (!parts)
            return Reason{Message::ScriptQuotes};
        if (row.word == ScriptWord::If)
            return TakeIf(std::move(*parts));
        if (parts->size() < row.minArguments || parts->size() > row.maxArguments)
            return Reason{Message::ScriptArguments, row.name};
        for (Part& part : *parts)
            command_.arguments.push_back(std::move(part.text));
        return Check(row);
    }

    Fault Check(const WordRow& row)
    {
        const std::vector<Text>& arguments = command_.arguments;
        if (row.word == ScriptWord::Set && !IsOwnVariable(arguments[0]))
            return Reason{Message::ScriptVariable, arguments[0]};
        if (row.word == ScriptWord::Exit && !arguments.empty() && !IsExitCode(arguments[0]))
            return Reason{Message::ScriptNumber, arguments[0], NumberText(kMaxExitCode)};
        if (row.word == ScriptWord::Else)
            return CloseBranch(true);
        if (row.word == ScriptWord::End)
            return CloseBranch(false);
        Add();
        return std::nullopt;
    }

    Fault TakeRegistry(const Text& rest)
    {
        const RegistryLine line = ReadRegistryLine(rest);
        if (line.reason)
            return Reason{*line.reason};
        command_.arguments.push_back(rest);
        Add();
        return std::nullopt;
    }

    Fault TakeIf(std::vector<Part> parts)
    {
        std::size_t first = 0;
        command_.isNegated = !parts.empty() && parts[0].Is("NOT");
        first += command_.isNegated ? 1 : 0;
        if (!TakeCondition(std::span(parts).subspan(first)))
            return Reason{Message::ScriptCondition};
        if (command_.test == ScriptTest::Registry)
            if (const auto reason = ReadRegistryPlace(command_.arguments[0]).reason)
                return Reason{*reason};
        open_.push_back(script_.commands.size());
        Add();
        return std::nullopt;
    }

    bool TakeCondition(std::span<Part> parts)
    {
        if (parts.size() == 2)
            for (const TestRow& row : kTests)
                if (parts[0].Is(row.name)) {
                    command_.test = row.test;
                    command_.arguments = {std::move(parts[1].text)};
                    return true;
                }
        if (parts.size() != 3 || (!parts[1].Is("=") && !parts[1].Is("<>")))
            return false;
        command_.test = parts[1].Is("=") ? ScriptTest::Equal : ScriptTest::Different;
        command_.arguments = {std::move(parts[0].text), std::move(parts[2].text)};
        return true;
    }

    // The branch before this command ends here, at an Else or an End; each If has one Else at most.
    Fault CloseBranch(bool opensAnother)
    {
        std::vector<ScriptCommand>& commands = script_.commands;
        const bool isElse = !open_.empty() && commands[open_.back()].word == ScriptWord::Else;
        if (open_.empty() || (opensAnother && isElse))
            return Reason{Message::ScriptNoIf, opensAnother ? "ELSE" : "END"};
        const std::size_t here = commands.size();
        commands[open_.back()].next = opensAnother ? here + 1 : here;
        open_.pop_back();
        if (opensAnother) {
            open_.push_back(here);
            Add();
        }
        return std::nullopt;
    }

    void Add() { script_.commands.push_back(std::move(command_)); }

    Script script_;
    ScriptCommand command_;
    int line_ = 0;
    std::vector<std::size_t> open_; // each If, or its Else, whose End has not come yet
};

} // namespace

RegistryLine ReadRegistryPlace(std::string_view place)
{
    // As a line that removes the value, or makes the key.
    const bool isValue = place.find(kValueMark) != std::string_view::npos;
    return ReadRegistryLine(Text(isValue ? kDeleteMark : "") + Text(place));
}

Script ReadScript(std::string_view text)
{
    return ScriptReader().Read(text);
}

} // namespace quillon
