#include "formats/section_document.h"

#include "helpers/product.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr std::string_view kOrigin = "Origin";
constexpr std::string_view kId = "ID";

class DocumentReader {
public:
    explicit DocumentReader(std::vector<DocumentSection> known) : known_(std::move(known)) {}

    /// False after the end of the file.
    bool Take(const Text& line)
    {
        const bool inList = current_ && current_->kind != DocumentSection::Kind::Keys;
        if (inList && line == kEndOfList)
            current_ = nullptr;
        else if (line == kEndOfFile && !IsTextOfList())
            return false;
        else if (DocumentSection* const next = inList ? nullptr : Header(line))
            current_ = next;
        else if (current_)
            current_->lines.push_back(line);
        return true;
    }

    std::vector<DocumentSection> Found() &&
    {
        std::erase_if(known_, [&](const DocumentSection& section) {
            return std::ranges::find(found_, section.name) == found_.end();
        });
        return std::move(known_);
    }

private:
    bool IsTextOfList() const
    {
        if (!current_ || current_->kind == DocumentSection::Kind::Keys)
            return false;
        return current_->kind == DocumentSection::Kind::List || !current_->lines.empty();
    }

    DocumentSection* Header(std::string_view line)
    {
        if (line.size() < 2 || line.front() != '[' || line.back() != ']')
            return nullptr;
        const std::string_view name = line.substr(1, line.size() - 2);
        const auto section = std::ranges::find_if(known_, [&](const DocumentSection& candidate) {
            return EqualIgnoreCase(candidate.name, name);
        });
        if (section == known_.end() || std::ranges::count(found_, section->name) != 0)
            return nullptr;
        found_.push_back(section->name);
        return &*section;
    }

    std::vector<DocumentSection> known_;
    std::vector<Text> found_;
    DocumentSection* current_ = nullptr;
};

bool IsLineOf(const Text& line, std::string_view key)
{
    const std::size_t equals = line.find('=');
    return equals != line.npos && EqualIgnoreCase(TrimBlanks(line.substr(0, equals)), key);
}

Text ValueOf(std::string_view line)
{
    line.remove_prefix(line.find('=') + 1);
    if (line.starts_with(' '))
        line.remove_prefix(1);
    return Text(line);
}

} // namespace

std::optional<Text> DocumentSection::Value(std::string_view key) const
{
    const auto line = std::ranges::find_if(
        lines, [&](const Text& candidate) { return IsLineOf(candidate, key); });
    return line == lines.end() ? std::nullopt : std::optional(ValueOf(*line));
}

std::optional<Text> DocumentSection::ValueUpTo(std::string_view key, std::string_view nextKey) const
{
    auto line = std::ranges::find_if(
        lines, [&](const Text& candidate) { return IsLineOf(candidate, key); });
    if (line == lines.end())
        return std::nullopt;
    Text value = ValueOf(*line);
    for (++line; line != lines.end() && !IsLineOf(*line, nextKey); ++line)
        value.append(kLineBreak).append(*line);
    return value;
}

const DocumentSection* SectionDocument::Find(std::string_view name) const
{
    const auto section = std::ranges::find(sections, name, &DocumentSection::name);
    return section == sections.end() ? nullptr : &*section;
}

std::vector<Text> FileHeaderLines(std::string_view fileType)
{
    std::vector<Text> lines;
    lines.push_back("[" + Text(kOrigin) + "]");
    lines.push_back("Info = " + Text(kOriginInfo));
    lines.push_back("");
    lines.push_back("[" + Text(kId) + "]");
    lines.push_back("App = " + Text(kTypeMark));
    lines.push_back("Ver = " + Text(kToolVersion));
    lines.push_back("FileType = " + Text(fileType));
    return lines;
}

SectionDocument ReadSectionDocument(const Text& text, std::string_view fileType,
                                    std::vector<DocumentSection> known)
{
    known.push_back({Text(kOrigin)});
    known.push_back({Text(kId)});
    DocumentReader reader(std::move(known));
    const std::vector<Text> lines = SplitLines(text);
    const auto end =
        std::ranges::find_if_not(lines, [&](const Text& line) { return reader.Take(line); });

    SectionDocument frame{.sections = std::move(reader).Found()};
    if (const DocumentSection* const id = frame.Find(kId)) {
        frame.toolVersion = id->Value("Ver").value_or("");
        frame.subType = id->Value("FileSubType").value_or("");
        frame.isWhole = end != lines.end() && id->Value("App") == kTypeMark &&
                        id->Value("FileType") == fileType;
    }
    return frame;
}

} // namespace quillon
