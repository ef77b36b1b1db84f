#include "runtime/ini_files/ini_lines.h"

namespace quillon {

namespace {

constexpr std::string_view kDashes = "--";

bool IsFileHeader(std::string_view line)
{
    return line.size() > 2 * kDashes.size() && line.substr(0, 2) == kDashes &&
           line.substr(line.size() - 2) == kDashes;
}

bool IsSection(std::string_view line)
{
    return line.size() > 2 && line.front() == '[' && line.back() == ']';
}

class IniListReader {
public:
    void Take(const Text& original)
    {
        const Text line = TrimBlanks(original);
        if (line.empty())
            return;
        if (IsFileHeader(line)) {
            file_ = TrimBlanks(line.substr(2, line.size() - 4));
            section_.clear();
        } else if (line.front() == ';') {
            Refuse(original, Message::SkipIniComment);
        } else if (file_.empty()) {
            Refuse(original, Message::SkipIniNoFile);
        } else if (IsSection(line)) {
            section_ = TrimBlanks(line.substr(1, line.size() - 2));
            list_.lines.push_back({file_, section_, {}, {}});
        } else {
            TakeValue(original, line);
        }
    }

    IniList Result() { return std::move(list_); }

private:
    void TakeValue(const Text& original, const Text& line)
    {
        const std::size_t equals = line.find('=');
        const Text name = TrimBlanks(line.substr(0, equals));
        if (equals == Text::npos || name.empty())
            Refuse(original, Message::SkipIniUnreadable);
        else if (section_.empty())
            Refuse(original, Message::SkipIniNoSection);
        else
            list_.lines.push_back({file_, section_, name, line.substr(equals + 1)});
    }

    void Refuse(const Text& line, Message reason) { list_.unreadable.push_back({line, reason}); }

    IniList list_;
    Text file_;
    Text section_;
};

} // namespace

IniList ReadIniLines(std::string_view list)
{
    IniListReader reader;
    for (const Text& line : SplitLines(list))
        reader.Take(line);
    return reader.Result();
}

} // namespace quillon
