// What /? and /VERSION say.
#pragma once

#include "runtime/texts/language_file.h"

namespace quillon {

/// A line for each switch of the setup, or of the uninstaller.
enum class HelpOf { Setup, Uninstaller };
std::vector<Text> HelpLines(const LanguageTexts& texts, HelpOf program);

/// "Exempel, version 1.2"; the name alone where there is no version.
Text VersionLine(const Text& product, const Text& version, const LanguageTexts& texts);

} // namespace quillon
