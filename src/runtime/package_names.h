// The runtime's own programs by the names that they have in a package and on the machine.
#pragma once

namespace quillon::RuntimeFile {

// On the medium nothing but the starter looks runnable.
inline constexpr const char* kSetupProgram = "QNS32X.BIN";
inline constexpr const char* kUnzipLibrary = "DUNZIP32.DLL";
inline constexpr const char* kRegistryHelper = "QNREG32.BIN";
inline constexpr const char* kSecondRegistryHelper = "QNXREG2.BIN";
inline constexpr const char* kUninstaller = "QNXUNIN.BIN";

} // namespace quillon::RuntimeFile
