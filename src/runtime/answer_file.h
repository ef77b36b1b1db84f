// The answers of an installation as an INI file: /SAVEINF= writes them, /LOADINF= gives them to the
// next one. A switch on the command line goes before the file's answer. The password is no answer.
#pragma once

#include "formats/setup_information.h"
#include "platform/file_system.h"
#include "runtime/switches.h"

namespace quillon {

/// Takes the answers of the file that /LOADINF= names, for what no switch gives. One that can't
/// be taken becomes the bad switch, with the key.
void LoadAnswers(const FileSystem& files, Switches& switches);

struct Answers {
    const SetupInformation& setup; // with what has been chosen
    Text destination;
    Text languageFile; // of /LANG=
    InstallScope scope;
};

void SaveAnswers(FileSystem& files, const Text& path, const Answers& answers);

/// Puts the file's names of the registration page into the project.
void ApplyUser(const Switches& switches, SetupInformation& setup);

} // namespace quillon
