// How a command line falls into switches. The starter asks the same, so it is written for any kind
// of character and without the standard library.
//
// A switch begins with a slash or a dash, and its value with '=' or ':'. Blanks and tabs part
// switches, but not inside quotation marks, which may stand around a value or around a switch as a
// whole: "/D=C:\My Folder" is what shells and launchers make of a blank. The folder of /D= needs
// none: it goes on to the next switch, a slash, or a dash with a letter after it.
#pragma once

namespace quillon {

// All words for "show nothing"; deployment tools have one each.
inline constexpr const char* kSilentWords[] = {"S", "SILENT", "VERYSILENT", "QUIET", "Q", "QN"};
// Further switches that suppress boxes, since no user may be there to answer them.
inline constexpr const char* kBoxlessWords[] = {"PASSIVE", "QB", "SUPPRESSMSGBOXES"};

// How the starters hand down to the program proper where the package is, and that it is to be the
// uninstaller of the program that is the value.
inline constexpr const char* kPackageSwitch = "PACKAGE";
inline constexpr const char* kUninstallerSwitch = "UNINSTALLER";

template <class Char>
bool IsSwitchBlank(Char character)
{
    return character == ' ' || character == '\t';
}

template <class Char>
bool IsSwitchMark(Char character)
{
    return character == '/' || character == '-';
}

/// Where the next switch begins; the end of the line where there is none.
template <class Char>
const Char* SkipSwitchBlanks(const Char* line)
{
    while (IsSwitchBlank(*line))
        ++line;
    return line;
}

template <class Char>
bool IsSwitchLetter(Char character)
{
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

/// Whether a switch begins here, though a folder might go on.
template <class Char>
bool BeginsSwitch(const Char* word)
{
    if (*word == '"')
        ++word;
    return *word == '/' || (*word == '-' && IsSwitchLetter(word[1]));
}

template <class Char>
bool IsValueMark(Char character)
{
    return character == '=' || character == ':';
}

/// Where the switch that begins at `word` ends.
template <class Char>
const Char* EndOfSwitch(const Char* word)
{
    const bool isFolder =
        IsSwitchMark(word[0]) && (word[1] == 'D' || word[1] == 'd') && IsValueMark(word[2]);
    bool quoted = false;
    for (; *word != 0; ++word) {
        if (*word == '"')
            quoted = !quoted;
        if (quoted || !IsSwitchBlank(*word))
            continue;
        const Char* const next = SkipSwitchBlanks(word);
        if (!isFolder || *next == 0 || BeginsSwitch(next))
            return word;
    }
    return word;
}

/// Whether a switch's name, without its mark, is the word, which is in capitals.
template <class Char>
bool IsSwitchWord(const Char* name, int length, const char* word)
{
    int i = 0;
    for (; i < length && word[i] != 0; ++i) {
        const Char upper =
            name[i] >= 'a' && name[i] <= 'z' ? static_cast<Char>(name[i] - 'a' + 'A') : name[i];
        if (upper != static_cast<Char>(word[i]))
            return false;
    }
    return i == length && word[i] == 0;
}

/// Whether the line holds one of the words, with or without quotation marks. A switch of that name
/// with a value counts too: it is wrong, and nothing is shown of that either.
template <class Char, int count>
bool HasSwitchOf(const Char* line, const char* const (&words)[count])
{
    constexpr int kMaxLength = 24;
    for (line = SkipSwitchBlanks(line); *line != 0; line = SkipSwitchBlanks(line)) {
        const Char* const end = EndOfSwitch(line);
        // Its characters up to a value, the quotation marks left out.
        Char name[kMaxLength] = {};
        int length = 0;
        for (; line != end && !IsValueMark(*line); ++line)
            if (*line != '"' && length++ < kMaxLength)
                name[length - 1] = *line;
        if (length > 1 && length <= kMaxLength && IsSwitchMark(name[0]))
            for (const char* word : words)
                if (IsSwitchWord(name + 1, length - 1, word))
                    return true;
        line = end;
    }
    return false;
}

template <class Char>
bool HasSilentSwitch(const Char* line)
{
    return HasSwitchOf(line, kSilentWords);
}

/// Whether a box may be shown that a user has to answer.
template <class Char>
bool AllowsBoxes(const Char* line)
{
    return !HasSilentSwitch(line) && !HasSwitchOf(line, kBoxlessWords);
}

/// Puts the value of the switch of that name, without quotation marks, into `to` with a null after
/// it; of several the last one counts. False, with `to` empty, where there is none, or only an
/// empty one or one of `room` characters or more.
template <class Char>
bool FindSwitchValue(const Char* line, const char* word, Char* to, int room)
{
    to[0] = 0;
    for (line = SkipSwitchBlanks(line); *line != 0; line = SkipSwitchBlanks(line)) {
        const Char* const end = EndOfSwitch(line);
        if (*line == '"')
            ++line;
        const Char* mark = line;
        while (mark != end && !IsValueMark(*mark))
            ++mark;
        const bool isIt = mark != end && IsSwitchMark(*line) &&
                          IsSwitchWord(line + 1, static_cast<int>(mark - line) - 1, word);
        int length = 0;
        for (line = mark; isIt && line != end && length < room; ++line)
            if (line != mark && *line != '"')
                to[length++] = *line;
        if (isIt)
            to[length < room ? length : 0] = 0;
        line = end;
    }
    return to[0] != 0;
}

} // namespace quillon
