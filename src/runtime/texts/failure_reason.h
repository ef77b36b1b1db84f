// Why something failed, in the language of the package: what the machine, an archive or the setup
// itself has thrown, as a part of a sentence for a box or a line of the log.
#pragma once

#include "archive/zip_reader.h"
#include "platform/run_error.h"
#include "runtime/exit_codes.h"
#include "runtime/texts/language_file.h"

#include <exception>
#include <optional>

namespace quillon {

Reason ReasonOf(const RunError& error);
/// The archive is the one of the package's files.
Reason ReasonOf(const ZipError& error);

/// Nothing where the reason is in words alone.
std::optional<Reason> ReasonOf(const std::exception& error);

Text FailureReason(const std::exception& error, const LanguageTexts& texts);

/// The message for the user after the error has ended an installation, and the exit code.
SetupFailure FailureOfSetup(const std::exception& error, const LanguageTexts& texts);

/// Ends the installation because of the package itself: nothing has been changed yet.
SetupFailure DamagedPackage(const LanguageTexts& texts, const Reason& reason);

} // namespace quillon
