// The programs of the setup, by their names on the machine and in a package, where nothing but the
// starter looks runnable.
#pragma once

namespace quillon {

struct RuntimeProgram {
    const char* name;
    const char* inPackage;
};

namespace RuntimePrograms {
// The project names it in a package.
inline constexpr RuntimeProgram kStarter = {"SETUP32.EXE", nullptr};
inline constexpr RuntimeProgram kSetup = {"QNS32X.EXE", "QNS32X.BIN"};
// `kSetup` for 64-bit machines, which the tool starts for a test run; no package has it.
inline constexpr const char* kTestSetup = "Qns32x.exe";
inline constexpr RuntimeProgram kUnzipLibrary = {"DUNZIP32.DLL", "DUNZIP32.DLL"};
inline constexpr RuntimeProgram kRegistryHelper = {"QNREG32.EXE", "QNREG32.BIN"};
inline constexpr RuntimeProgram kSecondRegistryHelper = {"QNXREG2.EXE", "QNXREG2.BIN"};
// The names of the commands by which the system starts it begin with this.
inline constexpr const char* kRunOnceName = "QNXREG2";
// Stands before the package where that is one program.
inline constexpr RuntimeProgram kSelfExtractor = {"QNSELFX.EXE", nullptr};
inline constexpr RuntimeProgram kUninstaller = {"QNXUNIN.EXE", "QNXUNIN.BIN"};
// The name of the uninstaller's own log begins with this.
inline constexpr const char* kUninstallerLogName = "QNXUNIN";
// The name of the uninstaller's file in a private folder, until it can be removed.
inline constexpr const char* kMovedUninstaller = "QNXUNIN.TMP";
// Installed beside the uninstaller: the digest of `kSetup`, which the uninstaller checks before it
// starts that program. There `kSetup` has the name that it has in a package, since a user who
// started it directly would see nothing happen.
inline constexpr const char* kUninstallerManifest = "QNXUNIN.SHA256";
// Says what the uninstaller has to remove, see `install_journal_name.h`.
inline constexpr const char* kInstallJournal = "QNXUNIN.LOG";
} // namespace RuntimePrograms

} // namespace quillon
