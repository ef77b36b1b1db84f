#include "formats/install_row.h"

#include "formats/section_document.h"
#include "helpers/ansi_text.h"
#include "helpers/number_text.h"
#include "project/file_rows.h"

#include <algorithm>
#include <variant>

namespace quillon {

namespace {

constexpr char kSeparator = ';';

// Some fields are followed by a blank and a semicolon, the others by a semicolon alone.
enum class Behind { Semicolon, BlankAndSemicolon };

using RowField = std::variant<Text InstallRow::*, int InstallRow::*, std::uint64_t InstallRow::*>;

struct FieldRule {
    RowField field;
    Behind behind;
};

// The fields after the key, in the order on the line.
constexpr FieldRule kFields[] = {
    // clang-format off
    {&InstallRow::name,           Behind::Semicolon},
    {&InstallRow::destination,    Behind::Semicolon},
    {&InstallRow::size,           Behind::Semicolon},
    {&InstallRow::sourceFolder,   Behind::Semicolon},
    {&InstallRow::iconMarker,     Behind::BlankAndSemicolon},
    {&InstallRow::copyOptions,    Behind::BlankAndSemicolon},
    {&InstallRow::component,      Behind::Semicolon},
    {&InstallRow::iconTitle,      Behind::BlankAndSemicolon},
    {&InstallRow::iconParameters, Behind::BlankAndSemicolon},
    {&InstallRow::workFolder,     Behind::BlankAndSemicolon},
    {&InstallRow::iconFile,       Behind::BlankAndSemicolon},
    {&InstallRow::viewer,         Behind::Semicolon},
    // clang-format on
};

struct FieldText {
    const InstallRow& row;

    Text operator()(Text InstallRow::*field) const { return row.*field; }
    Text operator()(int InstallRow::*field) const { return NumberText(row.*field); }
    Text operator()(std::uint64_t InstallRow::*field) const
    {
        return NumberText(static_cast<std::int64_t>(row.*field));
    }
};

// False where the field does not take the text.
struct FieldReader {
    InstallRow& row;
    std::string_view text;

    bool operator()(Text InstallRow::*field) const
    {
        row.*field = text;
        return true;
    }
    template <class Number>
    bool operator()(Number InstallRow::*field) const
    {
        const auto number = WholeNumber<Number>(text);
        row.*field = number.value_or(0);
        return number.has_value();
    }
};

bool ReadKey(std::string_view& line, InstallRow& row)
{
    const std::size_t equals = line.find('=');
    if (equals == line.npos || !line.starts_with(kFileRowLetter))
        return false;
    row.number = WholeNumber<int>(line.substr(1, equals - 1)).value_or(0);
    line.remove_prefix(equals + 1);
    return row.number > 0;
}

bool ReadField(std::string_view& line, const FieldRule& rule, InstallRow& row)
{
    const std::size_t end = line.find(kSeparator);
    if (end == line.npos)
        return false;
    std::string_view text = line.substr(0, end);
    line.remove_prefix(end + 1);
    if (rule.behind == Behind::BlankAndSemicolon && text.ends_with(' '))
        text.remove_suffix(1);
    return std::visit(FieldReader{row, text}, rule.field);
}

} // namespace

int ComponentNumberOf(const InstallRow& row)
{
    constexpr std::int64_t kMax = 32767;
    return static_cast<int>(std::clamp<std::int64_t>(LeadingNumber(row.component), 0, kMax));
}

Text InstallRowLine(const InstallRow& row)
{
    Text line = FileRowKey(row.number) + "=";
    for (const FieldRule& rule : kFields) {
        line += std::visit(FieldText{row}, rule.field);
        line += rule.behind == Behind::BlankAndSemicolon ? " ;" : ";";
    }
    return line;
}

std::optional<InstallRow> ReadInstallRow(std::string_view line)
{
    InstallRow row;
    if (!ReadKey(line, row))
        return std::nullopt;
    for (const FieldRule& rule : kFields)
        if (!ReadField(line, rule, row))
            return std::nullopt;
    const bool isWhole = line.empty() && !row.component.empty();
    return isWhole ? std::optional(row) : std::nullopt;
}

InstallFileList ReadInstallFileList(std::string_view bytes)
{
    InstallFileList list;
    const SectionDocument frame =
        ReadSectionDocument(AnsiText::FromBytes(bytes), kFileListType,
                            {{"FileList", DocumentSection::Kind::RowsOrNothing}});
    const DocumentSection* const section = frame.Find("FileList");
    if (!section)
        return list;

    list.isWhole = frame.isWhole;
    for (const Text& line : section->lines) {
        auto row = ReadInstallRow(line);
        const bool isNext = row && row->number == int(list.rows.size()) + 1;
        if (!isNext) {
            list.isWhole = false;
            return list;
        }
        list.rows.push_back(std::move(*row));
    }
    return list;
}

} // namespace quillon
