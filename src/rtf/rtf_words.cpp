#include "rtf/rtf_words.h"

#include "helpers/code_page.h"

#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

using Alignment = RtfParagraph::Alignment;
using Height = RtfStyle::Height;
using Capitals = RtfStyle::Capitals;

// Beyond these a number is a mistake: 22 inches, and letters of a quarter of a metre.
constexpr int kMaxDistance = 31680;
constexpr int kMaxHalfPoints = 1440;
constexpr int kUsualLetters = 24;
constexpr int kTwipsPerQuarterPoint = 5;

/// The number after a word.
class Parameter {
public:
    explicit Parameter(std::optional<int> number) : number_(number) {}

    /// "\b" and "\b1" switch on, "\b0" off.
    bool IsOn() const { return number_.value_or(1) != 0; }
    int Or(int missing) const { return number_.value_or(missing); }
    int Distance() const { return std::clamp(Or(0), -kMaxDistance, kMaxDistance); }
    int NonNegativeDistance() const { return std::max(0, Distance()); }

private:
    std::optional<int> number_;
};

struct StateWord {
    std::string_view word;
    void (*apply)(RtfState& state, Parameter parameter);
};

void AddTab(RtfState& state, Parameter parameter)
{
    if (state.tabCount < state.tabs.size() && parameter.Distance() > 0)
        state.tabs[state.tabCount++] = parameter.Distance();
}

void Underline(RtfState& state, Parameter parameter)
{
    state.style.isUnderlined = parameter.IsOn();
}

void StrikeOut(RtfState& state, Parameter parameter)
{
    state.style.isStruckOut = parameter.IsOn();
}

void SetCapitals(RtfState& state, Parameter parameter, Capitals capitals)
{
    state.style.capitals = parameter.IsOn() ? capitals : Capitals::AsWritten;
}

void Background(RtfState& state, Parameter parameter)
{
    state.backgroundNumber = parameter.Or(0);
}

// clang-format off
constexpr StateWord kStateWords[] = {
    {"b",           [](RtfState& state, Parameter parameter) { state.style.isBold = parameter.IsOn(); }},
    {"caps",        [](RtfState& state, Parameter parameter) { SetCapitals(state, parameter, Capitals::All); }},
    {"cb",          Background},
    {"cf",          [](RtfState& state, Parameter parameter) { state.foregroundNumber = parameter.Or(0); }},
    {"chcbpat",     Background},
    {"deleted",     [](RtfState& state, Parameter parameter) { state.isHidden = parameter.IsOn(); }},
    {"expnd",       [](RtfState& state, Parameter parameter) { state.style.letterSpacing = kTwipsPerQuarterPoint * parameter.Distance(); }},
    {"expndtw",     [](RtfState& state, Parameter parameter) { state.style.letterSpacing = parameter.Distance(); }},
    {"f",           [](RtfState& state, Parameter parameter) { state.fontNumber = parameter.Or(0); }},
    {"fi",          [](RtfState& state, Parameter parameter) { state.firstLineIndent = parameter.Distance(); }},
    {"fs",          [](RtfState& state, Parameter parameter) { state.style.halfPoints = std::clamp(parameter.Or(kUsualLetters), 2, kMaxHalfPoints); }},
    {"highlight",   Background},
    {"i",           [](RtfState& state, Parameter parameter) { state.style.isItalic = parameter.IsOn(); }},
    {"li",          [](RtfState& state, Parameter parameter) { state.leftIndent = parameter.Distance(); }},
    {"lin",         [](RtfState& state, Parameter parameter) { state.leftIndent = parameter.Distance(); }},
    {"nosupersub",  [](RtfState& state, Parameter) { state.style.height = Height::Normal; }},
    {"pard",        [](RtfState& state, Parameter) { ResetParagraph(state); }},
    {"plain",       [](RtfState& state, Parameter) { ResetStyle(state); }},
    {"qc",          [](RtfState& state, Parameter) { state.alignment = Alignment::Centre; }},
    {"qd",          [](RtfState& state, Parameter) { state.alignment = Alignment::Justified; }},
    {"qj",          [](RtfState& state, Parameter) { state.alignment = Alignment::Justified; }},
    {"ql",          [](RtfState& state, Parameter) { state.alignment = Alignment::Left; }},
    {"qr",          [](RtfState& state, Parameter) { state.alignment = Alignment::Right; }},
    {"ri",          [](RtfState& state, Parameter parameter) { state.rightIndent = parameter.Distance(); }},
    {"rin",         [](RtfState& state, Parameter parameter) { state.rightIndent = parameter.Distance(); }},
    {"sa",          [](RtfState& state, Parameter parameter) { state.spaceAfter = parameter.NonNegativeDistance(); }},
    {"sb",          [](RtfState& state, Parameter parameter) { state.spaceBefore = parameter.NonNegativeDistance(); }},
    {"scaps",       [](RtfState& state, Parameter parameter) { SetCapitals(state, parameter, Capitals::Small); }},
    {"sl",          [](RtfState& state, Parameter parameter) { state.lineSpacing = parameter.Distance(); }},
    {"slmult",      [](RtfState& state, Parameter parameter) { state.isLineSpacingMultiple = parameter.IsOn(); }},
    {"strike",      StrikeOut},
    {"striked",     StrikeOut},
    {"sub",         [](RtfState& state, Parameter parameter) { state.style.height = parameter.IsOn() ? Height::Subscript : Height::Normal; }},
    {"super",       [](RtfState& state, Parameter parameter) { state.style.height = parameter.IsOn() ? Height::Superscript : Height::Normal; }},
    {"tx",          AddTab},
    {"uc",          [](RtfState& state, Parameter parameter) { state.fallbackCharacters = std::max(0, parameter.Or(1)); }},
    {"ul",          Underline},
    {"uld",         Underline},
    {"uldash",      Underline},
    {"uldashd",     Underline},
    {"uldashdd",    Underline},
    {"uldb",        Underline},
    {"ulnone",      [](RtfState& state, Parameter) { state.style.isUnderlined = false; }},
    {"ulth",        Underline},
    {"ulw",         Underline},
    {"ulwave",      Underline},
    {"v",           [](RtfState& state, Parameter parameter) { state.isHidden = parameter.IsOn(); }},
};

struct CharacterWord {
    std::string_view word;
    char32_t character;
};

// A cell of a table ends as a tab does.
constexpr CharacterWord kCharacterWords[] = {
    {"-",         0xAD},
    {"\\",        '\\'},
    {"_",         0x2011},
    {"bullet",    0x2022},
    {"cell",      '\t'},
    {"emdash",    0x2014},
    {"emspace",   0x2003},
    {"endash",    0x2013},
    {"enspace",   0x2002},
    {"ldblquote", 0x201C},
    {"line",      '\n'},
    {"lquote",    0x2018},
    {"ltrmark",   0x200E},
    {"nestcell",  '\t'},
    {"qmspace",   0x2005},
    {"rdblquote", 0x201D},
    {"rquote",    0x2019},
    {"rtlmark",   0x200F},
    {"tab",       '\t'},
    {"zwj",       0x200D},
    {"zwnj",      0x200C},
    {"{",         '{'},
    {"}",         '}'},
    {"~",         0xA0},
};

// Pictures, notes, headers, what the writer remembers for itself. Groups that begin with \* are none
// of the text either and need no row.
constexpr std::string_view kIgnorableDestinations[] = {
    "annotation", "atnauthor", "atnid",   "bkmkend", "bkmkstart", "comment",    "datafield",
    "do",         "fldinst",   "footer",  "footerf", "footerl",   "footerr",    "footnote",
    "ftncn",      "ftnsep",    "ftnsepc", "header",  "headerf",   "headerl",    "headerr",
    "info",       "listtable", "nextfile", "nonshppict", "objclass", "objdata", "objname",
    "pict",       "pn",        "private", "revtbl",  "rxe",       "shpinst",    "shppict",
    "stylesheet", "tc",        "tcn",     "template", "txe",      "xe",
};

struct Charset {
    int number;
    int codePage;
};
constexpr Charset kCharsets[] = {
    {0,   kWindows1252}, {77,  kMacRoman}, {128, 932}, {129, 949}, {134, 936}, {136, 950},
    {161, 1253},         {162, 1254},      {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257},
    {204, 1251},         {222, 874},       {238, 1250}, {255, 850},
};

struct Sign {
    unsigned char byte;
    char32_t character;
};
// Where two of these fonts hold different signs at one byte, the one that lists are made with.
constexpr Sign kSigns[] = {
    {' ',  ' '},    {'*',  '*'},    {'-',  0x2013}, {'l',  0x25CF}, {'n',  0x25A0}, {'o',  0x25CB},
    {'q',  0x2751}, {'u',  0x25C6}, {'v',  0x2756}, {0xA0, 0xA0},   {0xA7, 0x25AA}, {0xA8, 0x25FB},
    {0xD2, 0xAE},   {0xD3, 0xA9},   {0xD4, 0x2122}, {0xD8, 0x27A2}, {0xE0, 0x2192}, {0xFC, 0x2713},
};
// clang-format on

static_assert(std::ranges::is_sorted(kStateWords, {}, &StateWord::word));
static_assert(std::ranges::is_sorted(kCharacterWords, {}, &CharacterWord::word));
static_assert(std::ranges::is_sorted(kIgnorableDestinations));

/// The row of a sorted table, or null.
template <class Row, std::size_t count>
const Row* FindRow(const Row (&rows)[count], std::string_view word)
{
    const auto* const row = std::ranges::lower_bound(rows, word, {}, &Row::word);
    return row != std::end(rows) && row->word == word ? row : nullptr;
}

} // namespace

bool ApplyRtfWord(RtfState& state, std::string_view word, std::optional<int> number)
{
    const StateWord* row = FindRow(kStateWords, word);
    if (row)
        row->apply(state, Parameter(number));
    return row != nullptr;
}

void ResetParagraph(RtfState& state)
{
    const RtfState fresh;
    state.alignment = fresh.alignment;
    state.leftIndent = state.rightIndent = state.firstLineIndent = 0;
    state.spaceBefore = state.spaceAfter = 0;
    state.lineSpacing = 0;
    state.isLineSpacingMultiple = false;
    state.tabCount = 0;
}

void ResetStyle(RtfState& state)
{
    const RtfState fresh;
    state.style = fresh.style;
    state.isHidden = false;
    state.fontNumber = -1;
    state.foregroundNumber = state.backgroundNumber = 0;
}

char32_t RtfCharacter(std::string_view word)
{
    const CharacterWord* row = FindRow(kCharacterWords, word);
    return row ? row->character : 0;
}

bool IsIgnorableDestination(std::string_view word)
{
    return std::ranges::binary_search(kIgnorableDestinations, word);
}

char32_t SymbolCharacter(unsigned char byte)
{
    constexpr char32_t kBullet = 0x2022;
    const auto* const sign = std::ranges::find(kSigns, byte, &Sign::byte);
    return sign == std::end(kSigns) ? kBullet : sign->character;
}

int CodePageOfCharset(int charset)
{
    const auto* const row = std::ranges::find(kCharsets, charset, &Charset::number);
    return row == std::end(kCharsets) ? 0 : row->codePage;
}

} // namespace quillon
