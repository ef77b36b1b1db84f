// The answers of an installation as an INI file: /SAVEINF= writes them, /LOADINF= gives them to the
// next one. A switch on the command line has precedence over the file. The password is not among
// the answers.
#pragma once

#include "formats/setup_information.h"
#include "platform/file_system.h"
#include "platform/machine.h"
#include "runtime/command_line/switches.h"
#include "runtime/setup_variables.h"
#include "runtime/user_choices.h"

namespace quillon {

/// Takes the answers of the file that /LOADINF= names, for what no switch gives. One that can't
/// be taken becomes the bad switch, with the key.
void LoadAnswers(const FileSystem& files, Switches& switches);

struct Answers {
    const SetupInformation& setup; // with what has been chosen
    const UserChoices& choices;    // what was, of names and folders of components
    const SetupVariables& variables;
    Text languageFile; // of /LANG=
    InstallScope scope;
};

void SaveAnswers(FileSystem& files, const Text& path, const Answers& answers);

/// Adds the file's names of the registration page, and its folders of components that the user may
/// choose. A name that the file leaves out is the one that the setup would propose.
void TakeAnswers(const Switches& switches, const SetupInformation& setup, const Machine& machine,
                 UserChoices& choices);

} // namespace quillon
