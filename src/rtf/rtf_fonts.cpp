#include "rtf/rtf_fonts.h"

#include "helpers/utf8.h"
#include "rtf/rtf_words.h"

namespace quillon {

namespace {

constexpr std::size_t kMaxFonts = 1000;
constexpr std::size_t kMaxNameLength = 100;

} // namespace

void RtfFonts::TakeWord(std::string_view word, int number)
{
    if (word == "f") {
        EndName();
        current_ = number;
        if (rows_.size() < kMaxFonts)
            rows_.try_emplace(number);
    }
    const auto found = rows_.find(current_);
    if (found == rows_.end())
        return;
    Row& row = found->second;
    if (word == "fcharset")
        row.charset = number;
    else if (word == "cpg")
        row.codePage = number;
    else if (word == "froman")
        row.font.family = RtfFont::Family::Roman;
    else if (word == "fswiss")
        row.font.family = RtfFont::Family::Swiss;
    else if (word == "fmodern")
        row.font.family = RtfFont::Family::Modern;
}

void RtfFonts::TakeCharacter(char32_t character)
{
    if (name_.size() < kMaxNameLength)
        AppendCodePoint(name_, character);
}

void RtfFonts::EndName()
{
    const auto found = rows_.find(current_);
    if (found != rows_.end() && found->second.font.name.empty())
        found->second.font.name = TrimBlanks(name_);
    name_.clear();
}

const RtfFonts::Row* RtfFonts::Find(int number) const
{
    const auto found = rows_.find(number);
    return found == rows_.end() ? nullptr : &found->second;
}

bool RtfFonts::IsSymbolFont(int number) const
{
    const Row* row = Find(number);
    return row && row->charset == kSymbolCharset;
}

int RtfFonts::CodePage(int number) const
{
    const Row* row = Find(number);
    if (!row)
        return 0;
    return row->codePage != 0 ? row->codePage : CodePageOfCharset(row->charset);
}

int RtfFonts::PlaceIn(std::vector<RtfFont>& used, int number)
{
    const auto found = rows_.find(number);
    if (found == rows_.end() || found->second.charset == kSymbolCharset)
        return -1;
    Row& row = found->second;
    if (row.place < 0) {
        row.place = static_cast<int>(used.size());
        used.push_back(row.font);
    }
    return row.place;
}

} // namespace quillon
