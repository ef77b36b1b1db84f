// The user, as the logic sees one: boxes to answer, choices to make, lines to read. The desktop
// tool shows windows, the command-line program prints and answers from its switches, and tests have
// prepared answers.
#pragma once

#include "helpers/text.h"
#include "platform/ask_looks.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

enum class Answer { Yes, No, Cancel };

/// What a file dialog is opened with. Folders and names are Windows paths.
struct FileQuestion {
    Text title;
    Text folder;   // where it opens; empty, or no longer there: where the system thinks best
    Text fileName; // what is in its name field; "*.ini" shows the files of that kind alone
    // Captions and their patterns by turns: "Projektfiler (*.qnp)|*.qnp|Alla filer (*.*)|*.*".
    Text filter;
    Text defaultExtension; // ".qnp", for a typed name that has none
    // Files with size and date, or as in older dialogs their names alone, in columns.
    enum class Look { Details, NamesOnly };
    Look look = Look::Details;
    // Whether a project will name the file, so that its path must be one that a project can hold.
    bool isForProject = true;
};

/// What the choice of a destination is opened with.
struct DestinationQuestion {
    enum class Place { User, System, Windows };
    Place place = Place::User;
    Text folder; // what is in the field of the user's own folder
};

class Ask {
public:
    virtual ~Ask() = default;

    // Boxes with an OK button alone: the information, exclamation and stop signs.
    virtual void Inform(const Text& title, const Text& text) = 0;
    virtual void Warn(const Text& title, const Text& text) = 0;
    virtual void Critical(const Text& title, const Text& text) = 0;

    /// A Yes/No question with an exclamation mark.
    /// `stops` is the answer that ends the command, for a program without a user who could answer.
    enum class Stops { OnYes, OnNo };
    virtual bool YesNo(const Text& title, const Text& text, Stops stops) = 0;
    /// An OK/Cancel question; true is OK. Cancel always ends the command.
    virtual bool OkCancel(const Text& title, const Text& text) = 0;
    /// A Yes/No/Cancel question with a question mark.
    virtual Answer YesNoCancel(const Text& title, const Text& text) = 0;

    // Choices. Nothing, or no name at all, is a cancelled dialog; a user who can't be asked cancels
    // them all.
    virtual std::optional<Text> OpenFile(const FileQuestion&) { return {}; }
    virtual std::vector<Text> OpenFiles(const FileQuestion&) { return {}; }
    virtual std::optional<Text> SaveFile(const FileQuestion&) { return {}; }
    /// A folder, picked in a tree that opens at `folder` below a line that says what it is for.
    virtual std::optional<Text> SelectDir(const Text& /*text*/, const Text& /*folder*/)
    {
        return {};
    }
    /// One line of text.
    virtual std::optional<Text> XInputBox(const Text& /*title*/, const Text& /*prompt*/)
    {
        return {};
    }
    /// The folder on the target machine, with variables, where new files go.
    virtual std::optional<Text> ChooseDestination(const DestinationQuestion&) { return {}; }
    /// One of the entries of `lbCompList`.
    virtual std::optional<Text> ChooseComponent(const std::vector<Text>& /*entries*/) { return {}; }

    /// One of the variables, to be put into a text; never an empty one.
    virtual std::optional<Text> ChooseVariable() { return {}; }

    /// A colour, 0x00BBGGRR; the dialog opens with the one that there is.
    virtual std::optional<Long> ChooseColour(Long /*current*/) { return {}; }
    /// A font; the dialog opens with the one that there is and asks for what that one has.
    virtual std::optional<FontChoice> ChooseFont(const FontChoice& /*current*/) { return {}; }

    /// A line of the progress list of a long command.
    virtual void AddStatusLine(const Text& line) = 0;
    /// Empties that list before a new command; what was printed stays printed.
    virtual void ClearStatusLines() {}
    /// How far a long step is, in bytes. `total` 0 ends the display of progress.
    virtual void ShowProgress(std::uint64_t done, std::uint64_t total) = 0;
    /// The pointer of a command at work; it is lifted for as long as a question is up.
    virtual void ShowBusyPointer(bool busy) = 0;
    /// What the status bar says while a command takes its time; an empty text gives the bar back.
    virtual void ShowStatusText(const Text&) {}
    virtual void Beep() = 0;
    /// Lets pending events run, so that a window stays alive during long work.
    virtual void ProcessEvents() = 0;
};

} // namespace quillon
