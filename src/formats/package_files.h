// The files of a setup package by the names under which the runtime looks for them, and the media
// that a package can be made for.
#pragma once

#include "helpers/number_text.h"

namespace quillon {

// The values of TargetMedia.
inline constexpr Integer kMediaFloppy = 1;
inline constexpr Integer kMediaCdCompressed = 2;
inline constexpr Integer kMediaCdTree = 3;
inline constexpr Integer kMediaInternet = 4;

namespace PackageFile {
inline constexpr const char* kFileList = "FILELIST.INF";
inline constexpr const char* kSetupInformation = "QNSETUP.INF";
inline constexpr const char* kFileContainer = "FILEDATA.DAT";
inline constexpr const char* kDesignContainer = "DESOBJ.DAT";
inline constexpr const char* kAutorun = "AUTORUN.INF";
inline constexpr const char* kLicenseRtf = "LICENSE.RTF";
// On the medium nothing but the starter looks runnable.
inline constexpr const char* kRuntime = "QNS32X.BIN";
inline constexpr const char* kUnzipLibrary = "DUNZIP32.DLL";
inline constexpr const char* kRegistryHelper = "QNREG32.BIN";
inline constexpr const char* kSecondRegistryHelper = "QNXREG2.BIN";
inline constexpr const char* kUninstaller = "QNXUNIN.BIN";
// Where files that are kept one by one lie.
inline constexpr const char* kOneByOneFolder = "SetupFiles";
} // namespace PackageFile

} // namespace quillon
