// Every text that an end user of a package reads: the setup's boxes, its log, the uninstaller's. A
// text stands in the package's language file under a section and a key; the Swedish one here is for
// a file that lacks it. The key doubles as the text's code wherever a program reads what was told.
#pragma once

#include "helpers/text.h"

namespace quillon {

/// In the order of the table of texts.
enum class Message {
    Extract,
    NoRuntime,
    Title,
    Checking,
    Copying,
    Settings,
    Undoing,
    Ok,
    Cancel,
    Yes,
    No,
    Back,
    Next,
    CancelQuestion,
    InsertDisk,
    FileExists,
    BadSwitch,
    NeedsPassword,
    WrongPassword,
    WrongSystem,
    WrongSystemQuestion,
    Damaged,
    DiskFull,
    Failed,
    NotUndone,
    EarlierNotUndone,
    RestartNeeded,
    UninstallIcon,
    PageWelcome,
    PageGeneralInfo,
    PageGeneralInfo2,
    PageLicenseInfo,
    PageLicenseInfoRtf,
    PagePassword,
    PageNameCompany,
    PageDestination,
    PageDestinationDrive,
    PageProgramGroup,
    PageStartInstall,
    PageInstallCompleted,
    TestTitle,
    PreviewTitle,
    Unnamed,
    TestNothing,
    TestPages,
    TestNoPages,
    Screen,
    ScreenTitle,
    ScreenSubTitle,
    ScreenSize,
    ScreenPicture,
    Close,
    TestFiles,
    PackageFileMissing,
    PackageFileIncomplete,
    PackageFileDamaged,
    PackageFileSize,
    PackageFilesDiffer,
    PackageForPreview,
    PackageNotArchive,
    PackageUnknownPacking,
    PackageBadFolder,
    PartRegistryLine,
    PartIniLine,
    PartRegistration,
    PartPage,
    PartScriptBefore,
    PartScriptAfter,
    PartStartupLines,
    PartNetTest,
    PartProgram,
    PartDocument,
    PartUpdate,
    PartRestart,
    SkipNotYet,
    SkipComponentOff,
    SkipPartOfWindows,
    SkipNoSource,
    SkipNobodyToAsk,
    SkipUserKeepsFile,
    SkipNeverReplaced,
    SkipReadOnly,
    SkipNoVersion,
    SkipNewerVersion,
    SkipSameVersion,
    SkipNewerFile,
    SkipNoFile,
    SkipNotSelfRegistering,
    SkipRegistrationFailed,
    SkipFixedRoot,
    SkipSystemKey,
    SkipNotHexadecimal,
    SkipNoData,
    SkipNoRootKey,
    SkipNoSubKey,
    SkipNoEquals,
    SkipIniComment,
    SkipIniNoFile,
    SkipIniNoSection,
    SkipIniUnreadable,
    SkipIniUnicode,
    UninstallTitle,
    UninstallQuestion,
    UninstallRunning,
    UninstallDone,
    UninstallPartly,
    UninstallNoLog,
    UninstallFailed,
    LogBegins,
    LogDone,
    LogEnds,
    LogEndsBecause,
    LogSkips,
    LogUndoes,
    LogUndoesInterrupted,
    LogClearsInterrupted,
    LogCannotUndo,
    LogWrongSystem,
    LogReads,
    LogNoManifest,
    LogMakesFolder,
    LogCopies,
    LogBacksUp,
    LogReplacesAtRestart,
    LogMakesShortcut,
    LogRemovesShortcut,
    LogWritesRegistry,
    LogRemovesRegistry,
    LogWritesIni,
    LogRegisters,
    LogRegistersFont,
    LogRemoves,
    LogRemovesAtRestart,
    LogRemovesFolder,
    LogPutsBack,
    LogCannotRemove,
    ReasonFileNotFound,
    ReasonFolderNotFound,
    ReasonAccessDenied,
    ReasonNoAccess,
    ReasonDiskFull,
    ReasonErrorNumber,
    ReasonErrorAt,
    ReasonUnexpected,
    ReasonCancelled,
    ReasonUsedByOthers,
    ReasonWasInWindows,
    ReasonValueChanged,
    ReasonKeyNotEmpty,
    ReasonFolderNotEmpty,
    Count
};

struct MessageKey {
    Message message;
    const char* section;
    const char* key;
    const char* swedish;
};
const MessageKey& KeyOf(Message message);

/// True for the texts that the uninstaller shows or logs. The package with its language file is far
/// away by then, so an installation records them.
bool IsOfUninstaller(Message message);

/// Why something is so, before it is said in the language of the package: logic that finds a reason
/// needs no language file.
struct Reason {
    Message message;
    Text first = {};  // in the place of "%1"
    Text second = {}; // in the place of "%2"

    bool operator==(const Reason&) const = default;
};

} // namespace quillon
