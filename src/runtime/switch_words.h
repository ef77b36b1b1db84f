// How a command line falls into switches. The starter asks the same, so it is written for any kind
// of character and without the standard library.
//
// Blanks and tabs part switches, but not inside quotation marks, which may occur around a value or
// around a switch as a whole: "/D=C:\My Folder" is what shells and launchers make of a blank. The
// folder of /D= needs none: it holds no slash, so that it goes on to the next switch.
#pragma once

namespace quillon {

template <class Char>
bool IsSwitchBlank(Char character)
{
    return character == ' ' || character == '\t';
}

/// Where the next switch begins; the end of the line where there is none.
template <class Char>
const Char* SkipSwitchBlanks(const Char* line)
{
    while (IsSwitchBlank(*line))
        ++line;
    return line;
}

/// Where the switch that begins at `word` ends.
template <class Char>
const Char* EndOfSwitch(const Char* word)
{
    const bool isFolder = word[0] == '/' && (word[1] == 'D' || word[1] == 'd') && word[2] == '=';
    bool quoted = false;
    for (; *word != 0; ++word) {
        if (*word == '"')
            quoted = !quoted;
        if (quoted || !IsSwitchBlank(*word))
            continue;
        const Char* const next = SkipSwitchBlanks(word);
        const bool beginsSwitch = next[0] == '/' || (next[0] == '"' && next[1] == '/');
        if (!isFolder || *next == 0 || beginsSwitch)
            return word;
    }
    return word;
}

/// Whether the line holds /S, with or without quotation marks.
template <class Char>
bool HasSilentSwitch(const Char* line)
{
    for (line = SkipSwitchBlanks(line); *line != 0; line = SkipSwitchBlanks(line)) {
        const Char* const end = EndOfSwitch(line);
        // Its characters up to a value, the quotation marks left out.
        Char name[3] = {};
        int length = 0;
        for (; line != end && *line != '=' && length <= 2; ++line)
            if (*line != '"' && length++ < 2)
                name[length - 1] = *line;
        if (length == 2 && name[0] == '/' && (name[1] == 'S' || name[1] == 's'))
            return true;
        line = end;
    }
    return false;
}

} // namespace quillon
