// What the pages know while the user goes through them, and what they work out of it.
#pragma once

#include "formats/install_drives.h"
#include "platform/ask.h"
#include "runtime/install/install_plan.h"
#include "runtime/pages/page.h"
#include "runtime/user_choices.h"

namespace quillon {

struct PageInput {
    Host& host;
    Target& target;
    Ask& ask;
    const LanguageTexts& texts;
    SetupInformation& setup; // takes the user's choices as they are made
    const std::vector<InstallRow>& rows;
    Text packageFolder;
    Text destination;         // from a switch or of an earlier version; empty: the project's own
    bool isUpdate = false;    // the destination is that of an earlier version
    bool hasPassword = false; // the right one has been given already
    InstallScope scope = InstallScope::Project;
    bool canCancel = true; // but for /NOCANCEL
};

struct PageState {
    explicit PageState(const PageInput& from) : input(from), setup(from.setup) {}

    const PageInput& input;
    UserChoices choices;
    SetupInformation& setup; // the project with the choices in it
    Text typedPassword;
    Text acceptedFolder; // the user knows that it exists
    bool showsDocument = true;

    /// Takes what has been chosen into the project.
    void Apply() { ApplyChoices(choices, setup); }
    SetupVariables Variables() const;
    Text MainFolder() const;
    Text ProjectTitle() const; // "Installation av X"
    // Bytes that the choices so far take, and without what can still be left out.
    std::uint64_t Needed() const;
    std::uint64_t MinSpace() const;
    /// False for a component that only updates an earlier version which is not there.
    bool CanBeInstalled(int component) const;
};

/// The page as it stands, filled with what was chosen before.
SetupPage MakePage(const PageState& state, PageKind kind);

/// A page after the installation that shows an RTF document.
SetupPage MakeDocumentPage(const PageState& state, const Text& title, const std::string& rtf);

/// Takes what has been typed and ticked.
void StoreAnswers(PageState& state, const SetupPage& page);

/// Whether the page's answers are valid; where not, a box says so.
bool MayLeavePage(PageState& state, SetupPage& page);

/// Updates the page after a change of the field.
void ReactTo(PageState& state, SetupPage& page, PageField field);

/// Where the groups of programs are made.
Text GroupsFolder(const PageState& state);

} // namespace quillon
