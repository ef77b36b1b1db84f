// What lives as long as the process: the open project, the options of the tool, its last files. One
// is made in main() and handed down by reference.
#pragma once

#include "builder/create_options.h"
#include "platform/ask.h"
#include "platform/host.h"
#include "platform/program_runner.h"
#include "project/records.h"
#include "shell/help_pages.h"
#include "shell/known_file.h"
#include "shell/settings.h"

#include <array>

namespace quillon {

struct Session {
    Host& host;
    Ask& ask;
    // Null where no program of others can be run.
    ProgramRunner* programs = nullptr;

    Project project;
    OpenProjectState state;
    // The project's file as it was when it was last read or saved.
    KnownFile knownFile;

    // Where programs and data of the tool lie is `options.ToolFolder`, where it writes
    // `options.OwnFolder`.
    CreateOptions options;
    quillon::Settings Settings;
    // Newest first; a free slot is empty.
    std::array<Text, 4> RecentFiles;

    // Where the next file dialog opens; held for the life of the process.
    Text ProjectsFolder;
    Text LastInstallFilesDir = "C:\\";
    Text LastDepFileDir = "C:\\";
    Text LastImportFolder; // of a build; empty until one is chosen

    // The design tab's surface, whose size goes into the package; the window keeps it up to date.
    DesignSurface surface;

    // Of the desktop program; without one the system shows the help.
    HelpWindow helpWindow;
};

/// A session with a new project, and the options of a tool that was never set up. `ownFolder` is
/// where the tool writes, its own folder where it is empty.
Session NewSession(Host& host, Ask& ask, const Text& toolFolder, const Text& ownFolder = {});

} // namespace quillon
