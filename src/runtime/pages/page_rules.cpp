#include "formats/setup_names.h"
#include "helpers/drive_path.h"
#include "helpers/windows_path.h"
#include "runtime/command_line/switches.h"
#include "runtime/pages/disk_space.h"
#include "runtime/pages/page_order.h"
#include "runtime/pages/page_state.h"

namespace quillon {

namespace {

using section::LicenseData;

struct UserField {
    PageField field;
    Text LicenseData::*in;
};

constexpr UserField kUserFields[] = {{PageField::UserName, &LicenseData::UserName},
                                     {PageField::UserCompany, &LicenseData::UserCompany},
                                     {PageField::UserAddress, &LicenseData::UserAddress},
                                     {PageField::UserPhone, &LicenseData::UserPhone},
                                     {PageField::UserFax, &LicenseData::UserFax},
                                     {PageField::UserEmail, &LicenseData::Useremail}};

Text TextOf(const SetupPage& page, PageField field)
{
    const PagePiece* const piece = page.Find(field);
    return piece ? TrimBlanks(piece->text) : Text();
}

bool Refuse(const PageState& state, const Text& text)
{
    state.input.ask.Critical(state.ProjectTitle(), text);
    return false;
}

bool IsFolder(const Text& path)
{
    return IsAbsolutePath(path) && FaultOfFolder(path) == PathFault::None;
}

bool RefuseFolder(const PageState& state, const Text& typed)
{
    const Text example =
        RemoveDupBackslashesEx(JoinPath(state.input.host.machine.GetProgramFilesDir(),
                                        state.setup.project.ProjectName.ProjectName));
    return Refuse(state, state.input.texts(Message::BadFolder, typed, example));
}

bool HasRoom(const PageState& state, std::uint64_t needed)
{
    const Text folder = state.MainFolder();
    const auto free = FreeSpaceAt(state.input.host.files, folder);
    return !free || *free >= needed ||
           Refuse(state, state.input.texts(Message::NoRoom, folder.substr(0, 2)));
}

// `folder` on another drive.
Text OnDrive(const Text& folder, const Text& root)
{
    return JoinPath(root, WithoutDrive(folder));
}

/// The folder that the user has typed, in its plain form.
Text TypedFolder(const SetupPage& page)
{
    const Text typed = TextOf(page, PageField::Folder);
    const Text plain = ResolvePath(typed);
    return IsAbsolutePath(typed) ? plain : typed;
}

void StoreUser(PageState& state, const SetupPage& page)
{
    LicenseData user = state.setup.project.LicenseData;
    for (const auto& [field, in] : kUserFields)
        if (page.Find(field))
            user.*in = TextOf(page, field);
    state.choices.user = user;
}

int SelectedComponent(const PageState& state, const SetupPage& page)
{
    const PagePiece* const list = page.Find(PageField::Components);
    const std::vector<int> numbers = ComponentsInUse(state.setup);
    const bool isOne = list && list->selected >= 0 && list->selected < int(numbers.size());
    return isOne ? numbers[std::size_t(list->selected)] : 0;
}

// Only a folder that the user has changed is stored: any other keeps following the main one.
void StoreComponentFolder(PageState& state, const SetupPage& page, int number)
{
    const PagePiece* const entry = page.Find(PageField::Folder);
    if (number == 0 || entry == nullptr || !entry->isEnabled)
        return;
    const Text shown = state.Variables().Value(NameOf(VariableMeaning::ComponentFolder, number));
    if (const Text typed = TypedFolder(page); typed != shown)
        state.choices.components[std::size_t(number) - 1].folder = typed;
}

void StoreComponents(PageState& state, const SetupPage& page)
{
    const PagePiece* const list = page.Find(PageField::Components);
    const std::vector<int> numbers = ComponentsInUse(state.setup);
    for (std::size_t i = 0; i < numbers.size() && i < list->items.size(); ++i)
        state.choices.components[std::size_t(numbers[i]) - 1].isTicked = list->items[i].isTicked;
    StoreComponentFolder(state, page, SelectedComponent(state, page));
}

void StoreDrive(PageState& state, const SetupPage& page)
{
    const PagePiece* const list = page.Find(PageField::Drives);
    if (list->selected < 0 || list->selected >= int(list->items.size()))
        return;
    const Text root = list->items[std::size_t(list->selected)].text.substr(0, 3);
    const Text folder = OnDrive(state.MainFolder(), root);
    if (!EqualIgnoreCase(folder, state.MainFolder()))
        state.choices.destination = folder;
}

bool MayTakeFolder(PageState& state, const SetupPage& page)
{
    const Text folder = TypedFolder(page);
    if (!IsFolder(folder))
        return RefuseFolder(state, TextOf(page, PageField::Folder));
    // Components that the user can still leave out do not count.
    if (!HasRoom(state, state.MinSpace()))
        return false;
    const bool warns = state.setup.project.DialogBoxData.WarnIfDestDirExists != kOff &&
                       !EqualIgnoreCase(folder, state.acceptedFolder) &&
                       !(state.input.isUpdate && EqualIgnoreCase(folder, state.input.destination));
    if (warns && state.input.host.files.DirExists(folder) &&
        !state.input.ask.YesNo(state.ProjectTitle(),
                               state.input.texts(Message::FolderExistsQuestion, folder),
                               Ask::Stops::OnNo))
        return false;
    state.acceptedFolder = folder;
    return true;
}

bool MayTakeComponents(PageState& state)
{
    const SetupVariables variables = state.Variables();
    for (const int number : ComponentsInUse(state.setup)) {
        const Text folder = variables.Value(NameOf(VariableMeaning::ComponentFolder, number));
        const auto& typed = state.choices.components[std::size_t(number) - 1].folder;
        if (typed && !IsFolder(folder))
            return RefuseFolder(state, *typed);
    }
    return HasRoom(state, state.Needed());
}

bool MayTakePassword(PageState& state, SetupPage& page)
{
    if (state.typedPassword == state.setup.project.DialogBoxData.CorrectPassword)
        return true;
    state.typedPassword.clear();
    page.Find(PageField::Password)->text.clear();
    return Refuse(state, state.input.texts[Message::WrongPassword]);
}

bool MayTakeGroup(PageState& state, const SetupPage& page)
{
    const Text group = TextOf(page, PageField::Group);
    return FaultOfProgramGroup(group) == PathFault::None ||
           Refuse(state, state.input.texts(Message::BadGroup, group));
}

void ShowSpace(const PageState& state, SetupPage& page)
{
    const Machine& machine = state.input.host.machine;
    const auto free = FreeSpaceAt(state.input.host.files, state.MainFolder());
    if (PagePiece* const value = page.Find(PageField::NeededSpace))
        value->text = SpaceText(state.Needed(), machine);
    if (PagePiece* const value = page.Find(PageField::FreeSpace))
        value->text = free ? SpaceText(*free, machine) : state.input.texts[Message::SpaceUnknown];
}

void TellSpace(const PageState& state)
{
    const LanguageTexts& texts = state.input.texts;
    const Machine& machine = state.input.host.machine;
    const auto free = FreeSpaceAt(state.input.host.files, state.MainFolder());
    state.input.ask.Inform(texts[Message::TitleDiskSpace],
                           texts[Message::LabelNeededSpace] + " " +
                               SpaceText(state.Needed(), machine) + Text(kLineBreak) +
                               texts[Message::LabelFreeSpace] + " " +
                               (free ? SpaceText(*free, machine) : texts[Message::SpaceUnknown]));
}

void Browse(const PageState& state, SetupPage& page)
{
    PagePiece* const entry = page.Find(PageField::Folder);
    const auto chosen =
        state.input.ask.SelectDir(state.input.texts[Message::ChooseFolder], entry->text);
    if (chosen && !chosen->empty())
        entry->text = *chosen;
}

// A component that must be installed keeps its tick; one that only updates an earlier version gets
// none where that is missing, and the project may say why.
void CorrectTicks(const PageState& state, SetupPage& page)
{
    PagePiece* const list = page.Find(PageField::Components);
    const std::vector<int> numbers = ComponentsInUse(state.setup);
    for (std::size_t i = 0; i < numbers.size() && i < list->items.size(); ++i) {
        const auto& component = state.setup.project.FileComponents[std::size_t(numbers[i]) - 1];
        bool& isTicked = list->items[i].isTicked;
        const bool canBe = state.CanBeInstalled(numbers[i]);
        if (isTicked && !canBe && !component.CompAdvUpdateInfoBoxText.empty())
            state.input.ask.Inform(component.CompAdvUpdateInfoBoxTitle.empty()
                                       ? state.ProjectTitle()
                                       : component.CompAdvUpdateInfoBoxTitle,
                                   component.CompAdvUpdateInfoBoxText);
        isTicked = canBe && (isTicked || component.CompMustAlwaysBeInstalled != 0);
    }
}

void ShowComponent(const PageState& state, SetupPage& page)
{
    const int number = SelectedComponent(state, page);
    if (number == 0)
        return;
    // The page shows the first component in the same way when it opens.
    const auto& component = state.setup.project.FileComponents[std::size_t(number) - 1];
    const SetupVariables variables = state.Variables();
    const bool expands =
        IsTrueText(state.setup.project.InstallOptions.ExpandVariablesInDialogBoxes);
    page.Find(PageField::ComponentText)->text =
        expands ? variables.Expand(component.CompText) : component.CompText;
    if (PagePiece* const entry = page.Find(PageField::Folder)) {
        entry->text = variables.Value(NameOf(VariableMeaning::ComponentFolder, number));
        entry->isEnabled = component.CompCanChangeDir != 0;
    }
}

} // namespace

void StoreAnswers(PageState& state, const SetupPage& page)
{
    switch (page.kind) {
    case PageKind::Password:
        state.typedPassword = page.Find(PageField::Password)->text;
        break;
    case PageKind::NameCompany:
        StoreUser(state, page);
        break;
    case PageKind::Destination:
        // An invalid folder is shown again as it was typed.
        if (const Text folder = TypedFolder(page); folder != state.MainFolder())
            state.choices.destination = folder;
        break;
    case PageKind::DestinationDrive:
        StoreDrive(state, page);
        break;
    case PageKind::Components:
        StoreComponents(state, page);
        break;
    case PageKind::ProgramGroup:
        state.choices.programGroup = TextOf(page, PageField::Group);
        break;
    case PageKind::InstallCompleted:
        if (const PagePiece* const box = page.Find(PageField::ShowDocument))
            state.showsDocument = box->isTicked;
        break;
    default:
        break;
    }
    state.Apply();
}

bool MayLeavePage(PageState& state, SetupPage& page)
{
    switch (page.kind) {
    case PageKind::Password:
        return MayTakePassword(state, page);
    case PageKind::Destination:
        return MayTakeFolder(state, page);
    case PageKind::DestinationDrive:
        return HasRoom(state, state.MinSpace());
    case PageKind::Components:
        return MayTakeComponents(state);
    case PageKind::ProgramGroup:
        return MayTakeGroup(state, page);
    default:
        return true;
    }
}

void ReactTo(PageState& state, SetupPage& page, PageField field)
{
    switch (field) {
    case PageField::Browse:
        Browse(state, page);
        StoreAnswers(state, page);
        ShowSpace(state, page);
        break;
    case PageField::Folder:
    case PageField::Drives:
        StoreAnswers(state, page);
        ShowSpace(state, page);
        break;
    case PageField::SpaceBox:
        StoreAnswers(state, page);
        TellSpace(state);
        break;
    case PageField::Components:
        CorrectTicks(state, page);
        ShowComponent(state, page);
        StoreAnswers(state, page);
        ShowSpace(state, page);
        break;
    case PageField::Groups: {
        const PagePiece* const list = page.Find(PageField::Groups);
        if (list->selected >= 0 && list->selected < int(list->items.size()))
            page.Find(PageField::Group)->text = list->items[std::size_t(list->selected)].text;
        break;
    }
    default:
        break;
    }
}

} // namespace quillon
