// The files of a setup package by the names under which the runtime looks for them, and the media
// that a package can be made for.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"

namespace quillon {

inline constexpr const char* kFileListName = "FILELIST.INF";
/// The section of a language file with the texts that are shown before there is a package.
inline constexpr const char* kStarterSection = "PreLoader";

inline constexpr const char* kSetupInformationName = "QNSETUP.INF";
inline constexpr const char* kFileContainerName = "FILEDATA.DAT";
inline constexpr const char* kDesignContainerName = "DESOBJ.DAT";
inline constexpr const char* kAutorunName = "AUTORUN.INF";
inline constexpr const char* kLicenseRtfName = "LICENSE.RTF";
// The installer of Microsoft Data Access, which the setup runs before it copies; in a package it
// has a name that does not look runnable.
inline constexpr const char* kDataAccessProgram = "MDAC_TYP.EXE";
inline constexpr const char* kDataAccessArchive = "MDAC_TYP.ZIP";
// Distinguishes a whole package from a half or a damaged one.
inline constexpr const char* kManifestName = "PACKAGE.SHA256";
// What a self-extracting program is made of and by, in the folder for as long as it is being made.
inline constexpr const char* kSelfExtractArchive = "INSTALL.ZIP";
inline constexpr const char* kSelfExtractProject = "INSTALL.ADX";
// The name of such a program where the project gives none.
inline constexpr const char* kSelfExtractDefaultName = "SELF.EXE";
// Where files that are kept one by one lie.
inline constexpr const char* kSetupFilesFolder = "SetupFiles";

/// The name of a file that is kept by itself, in one folder with all the others: none of these
/// names looks runnable.
Text MarkedName(const Text& name);
/// The folder of such a file where the folders of the destinations are kept, with plain names: what
/// goes below %DESTDIR lies below a folder DESTDIR in `base`.
Text FolderInTree(const Text& base, const Text& destination);

/// The values of `TargetMedia`.
enum class Medium : Integer { Floppy = 1, CompressedCd = 2, CdTree = 3, Internet = 4 };

} // namespace quillon
