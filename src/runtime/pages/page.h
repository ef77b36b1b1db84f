// A page of the setup before any window is made: what is on it, what can be filled in, and
// which buttons it has. The logic of the pages fills it, a `PageView` shows it and keeps what the
// user types and ticks in the same record.
#pragma once

#include "helpers/text.h"

#include <functional>
#include <vector>

namespace quillon {

/// In the order in which a setup shows them.
enum class PageKind {
    Welcome,
    GeneralInfo,
    GeneralInfo2,
    LicenseInfo,
    LicenseInfoRtf,
    Password,
    NameCompany,
    Destination,
    DestinationDrive,
    Components,
    ProgramGroup,
    StartInstall,
    InstallCompleted,
};

/// The meaning of a control. A page has each at most once, so it also identifies the control.
enum class PageField {
    None,
    BodyText,
    Agreement,
    FootText,
    Password,
    UserName,
    UserCompany,
    UserAddress,
    UserPhone,
    UserFax,
    UserEmail,
    Folder,
    Browse,
    Drives,
    Components,
    ComponentText,
    Group,
    Groups,
    NeededSpace,
    FreeSpace,
    SpaceBox,
    ShowDocument,
    Count
};

enum class PieceKind {
    Paragraph, // text as high as its lines, up to a limit
    Rest,      // text that takes what room the other pieces leave
    Paper,     // the same, to be read: on paper, in a frame
    RichPaper, // the same, read-only, in a frame
    Entry,     // a line to type in, its label before it or above
    Password,  // the same, each letter shown as an asterisk
    List,      // one of several lines, below its label
    CheckList, // any of several lines, each with a second column
    Value,     // a label and its text
    Button,
    CheckBox,
    Gap, // room that is left empty
};

struct PageItem {
    Text text;
    Text detail; // of a second column
    bool isTicked = false;

    bool operator==(const PageItem&) const = default;
};

struct PagePiece {
    PieceKind kind = PieceKind::Gap;
    PageField field = PageField::None;
    Text label; // with the access letter marked by '&'; the caption of a button and of a check box
    Text text;  // what it shows, or what has been typed
    bool isLabelAbove = false;
    bool isEnabled = true;
    bool isTicked = false;
    int maxLength = 0;           // of an entry, in characters; 0 where there is no limit
    int maxHeight = 0;           // of a paragraph, in dialog units
    std::vector<PageItem> items; // of a list
    int selected = -1;
    // A button after an entry.
    Text button;
    PageField buttonField = PageField::None;
};

enum class PageButtons {
    BackNextCancel,
    BackYesNo, // an agreement is accepted or declined
    Finish,    // after the installation there is nothing to go back to and nothing to cancel
};

struct SetupPage {
    PageKind kind = PageKind::Welcome;
    Text windowTitle;
    Text title;  // empty: the page has none
    Text bitmap; // the picture's file as the package names it; empty: the standard one
    std::vector<PagePiece> pieces;
    PageButtons buttons = PageButtons::BackNextCancel;
    bool canGoBack = true;
    bool canCancel = true;             // else the button is grey, and Esc and closing do nothing
    PageField focus = PageField::None; // None: the button that leads on

    PagePiece* Find(PageField field)
    {
        for (PagePiece& piece : pieces)
            if (piece.field == field)
                return &piece;
        return nullptr;
    }
    const PagePiece* Find(PageField field) const
    {
        return const_cast<SetupPage*>(this)->Find(field);
    }
};

enum class PageAction { Back, Next, Cancel };

/// Called with the page and a field that the user has changed, left or pressed; what it changes in
/// the page is shown.
using PageListener = std::function<void(SetupPage& page, PageField field)>;

class SetupVariables;

class PageView {
public:
    virtual ~PageView() = default;

    /// Shows the page until the user wants to leave it. What is in its fields is in `page`
    /// afterwards.
    virtual PageAction Show(SetupPage& page, const PageListener& listener) = 0;
    /// The pages are closed for now: something else shows the progress.
    virtual void Hide() = 0;
    /// What the variables stand for with the choices so far, for texts behind the pages. Called
    /// before each page, and once more when the choices are complete.
    virtual void SetVariables(const SetupVariables& variables) = 0;
};

} // namespace quillon
