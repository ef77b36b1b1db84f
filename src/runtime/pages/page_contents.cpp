#include "formats/package_files.h"
#include "formats/page_layout.h"
#include "helpers/line_breaks.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "project/dialog_keys.h"
#include "project/install_keys.h"
#include "runtime/pages/disk_space.h"
#include "runtime/pages/page_order.h"
#include "runtime/pages/page_state.h"

namespace quillon {

namespace {

using section::DialogBoxData;
using section::LicenseData;

// An agreement is a document, not a package.
constexpr std::uint64_t kMaxAgreementSize = 16 * 1024 * 1024;
constexpr int kMaxDescriptionHeight = 17; // dialog units

class PageMaker {
public:
    PageMaker(const PageState& state, PageKind kind)
        : state_(state), texts_(state.input.texts), data_(state.setup.project.DialogBoxData),
          variables_(state.Variables())
    {
        const PageSource& source = SourceOf(kind);
        page_.kind = kind;
        page_.title = source.title ? Shown(data_.*source.title) : texts_[source.name];
        page_.windowTitle = page_.title.empty() ? state.ProjectTitle() : page_.title;
        page_.bitmap = source.bitmap ? data_.*source.bitmap : Text();
        if (page_.bitmap.empty())
            page_.bitmap = state.setup.project.DialogBoxes.DlgBitmap;
    }

    SetupPage Make()
    {
        switch (page_.kind) {
        case PageKind::LicenseInfo:
            Agreement({.kind = PieceKind::Paper, .text = Shown(data_.LicenseText)},
                      data_.LicenseFootText);
            break;
        case PageKind::LicenseInfoRtf:
            Agreement({.kind = PieceKind::RichPaper, .text = AgreementFile()},
                      data_.LicenseFootTextRtf);
            break;
        case PageKind::Password:
            Password();
            break;
        case PageKind::NameCompany:
            NameCompany();
            break;
        case PageKind::Destination:
            Destination();
            break;
        case PageKind::DestinationDrive:
            Drive();
            break;
        case PageKind::Components:
            Components();
            break;
        case PageKind::ProgramGroup:
            Group();
            break;
        case PageKind::StartInstall:
            Add({.kind = PieceKind::Rest, .field = PageField::BodyText, .text = WithSummary()});
            break;
        case PageKind::InstallCompleted:
            Completed();
            break;
        default:
            Add({.kind = PieceKind::Rest, .field = PageField::BodyText, .text = OwnText()});
        }
        return std::move(page_);
    }

private:
    void Add(PagePiece piece) { page_.pieces.push_back(std::move(piece)); }
    void AddGap() { Add({}); }

    Text Shown(const Text& text) const
    {
        return IsTrueText(state_.setup.project.InstallOptions.ExpandVariablesInDialogBoxes)
                   ? variables_.Expand(text)
                   : text;
    }
    Text OwnText() const { return Shown(data_.*SourceOf(page_.kind).text); }

    void Paragraph(const Text& text)
    {
        if (!text.empty())
            Add({.kind = PieceKind::Paragraph,
                 .field = PageField::BodyText,
                 .text = text,
                 .maxHeight = PageLayout::kMaxTextHeight});
    }

    void Agreement(PagePiece paper, const Text& footText)
    {
        page_.buttons = PageButtons::BackYesNo;
        paper.field = PageField::Agreement;
        Add(std::move(paper));
        if (!footText.empty())
            Add({.kind = PieceKind::Paragraph,
                 .field = PageField::FootText,
                 .text = Shown(footText),
                 .maxHeight = PageLayout::kMaxFootTextHeight});
    }

    Text AgreementFile() const
    {
        const FileSystem& files = state_.input.host.files;
        const Text path = JoinPath(state_.input.packageFolder, kLicenseRtfName);
        Text rtf;
        RunErrorNumber([&] {
            if (files.FileExists(path) && files.Status(path).size <= kMaxAgreementSize)
                rtf = ReadWholeFile(files, path);
        });
        return rtf;
    }

    void Password()
    {
        Paragraph(Shown(FirstLineOnly(data_.PasswordDialogText)));
        Add({.kind = PieceKind::Secret,
             .field = PageField::Password,
             .label = texts_[Message::LabelPassword],
             .text = state_.typedPassword,
             .maxLength = LongestText(section::kDialogBoxData, &DialogBoxData::CorrectPassword)});
        AddGap();
        page_.focus = PageField::Password;
    }

    void UserEntry(PageField field, Message label, VariableMeaning meaning, Text LicenseData::*in)
    {
        Add({.kind = PieceKind::Entry,
             .field = field,
             .label = texts_[label],
             .text = variables_.Value(NameOf(meaning)),
             .maxLength = LongestText(section::kLicenseData, in)});
    }

    void NameCompany()
    {
        using Meaning = VariableMeaning;
        const bool asksAddress = data_.NameCompanyExtendedInfo != kOff;
        Paragraph(texts_[asksAddress ? Message::TextNameCompanyAddress : Message::TextNameCompany]);
        // clang-format off
        UserEntry(PageField::UserName,    Message::LabelUserName,    Meaning::UserName,    &LicenseData::UserName);
        UserEntry(PageField::UserCompany, Message::LabelUserCompany, Meaning::UserCompany, &LicenseData::UserCompany);
        if (asksAddress) {
            UserEntry(PageField::UserAddress, Message::LabelUserAddress, Meaning::UserAddress, &LicenseData::UserAddress);
            UserEntry(PageField::UserPhone,   Message::LabelUserPhone,   Meaning::UserPhone,   &LicenseData::UserPhone);
            UserEntry(PageField::UserFax,     Message::LabelUserFax,     Meaning::UserFax,     &LicenseData::UserFax);
            UserEntry(PageField::UserEmail,   Message::LabelUserEmail,   Meaning::UserEmail,   &LicenseData::Useremail);
        }
        // clang-format on
        AddGap();
        page_.focus = PageField::UserName;
    }

    void Folder(const Text& text, bool isEnabled)
    {
        Add({.kind = PieceKind::Entry,
             .field = PageField::Folder,
             .label = texts_[Message::LabelFolder],
             .text = text,
             .isLabelAbove = true,
             .isEnabled = isEnabled,
             .maxLength = LongestText(section::kInstallDirectories,
                                      &section::InstallDirectories::DestinationDirectory),
             .button = texts_[Message::Browse],
             .buttonField = PageField::Browse});
    }

    void Destination()
    {
        Paragraph(texts_[Message::TextDestination]);
        Folder(state_.MainFolder(), true);
        AddGap();
        Space(data_.DestDirShowSizeInfo, data_.DestDirShowSizeInfoButton);
    }

    void Drive()
    {
        Paragraph(texts_[Message::TextDrive]);
        const FileSystem& files = state_.input.host.files;
        PagePiece list{.kind = PieceKind::List,
                       .field = PageField::Drives,
                       .label = texts_[Message::LabelDrive],
                       .selected = 0};
        for (const Text& root : InstallDrives(files)) {
            if (EqualIgnoreCase(root.substr(0, 2), state_.MainFolder().substr(0, 2)))
                list.selected = static_cast<int>(list.items.size());
            Text volume;
            RunErrorNumber([&] { volume = files.GetVolumeName(root); });
            list.items.push_back({.text = volume.empty() ? root : root + "  (" + volume + ")"});
        }
        Add(std::move(list));
        Space(data_.DestDriveShowSizeInfo, data_.DestDriveShowSizeInfoButton);
        page_.focus = PageField::Drives;
    }

    void Space(Flag atOnce, Flag behindButton)
    {
        const Machine& machine = state_.input.host.machine;
        if (atOnce != kOff) {
            const auto free = FreeSpaceAt(state_.input.host.files, state_.MainFolder());
            Add({.kind = PieceKind::Value,
                 .field = PageField::NeededSpace,
                 .label = texts_[Message::LabelNeededSpace],
                 .text = SpaceText(state_.Needed(), machine)});
            Add({.kind = PieceKind::Value,
                 .field = PageField::FreeSpace,
                 .label = texts_[Message::LabelFreeSpace],
                 .text = free ? SpaceText(*free, machine) : texts_[Message::SpaceUnknown]});
        }
        if (behindButton != kOff)
            Add({.kind = PieceKind::Button,
                 .field = PageField::SpaceBox,
                 .label = texts_[Message::DiskSpaceButton]});
    }

    void Components()
    {
        Paragraph(texts_[Message::TextComponents]);
        const std::vector<int> numbers = ComponentsInUse(state_.setup);
        const auto sizes = SizesByComponent(state_.input.rows);
        PagePiece list{.kind = PieceKind::CheckList,
                       .field = PageField::Components,
                       .label = texts_[Message::LabelComponents],
                       .selected = 0};
        bool canChangeFolder = false;
        for (const int number : numbers) {
            const auto& component = Component(number);
            list.items.push_back(
                {Shown(component.CompName),
                 SpaceText(sizes[std::size_t(number)], state_.input.host.machine),
                 state_.CanBeInstalled(number) &&
                     (component.CompDefault != 0 || component.CompMustAlwaysBeInstalled != 0)});
            canChangeFolder = canChangeFolder || component.CompCanChangeDir != 0;
        }
        Add(std::move(list));
        const int first = numbers.empty() ? 1 : numbers.front();
        Add({.kind = PieceKind::Paragraph,
             .field = PageField::ComponentText,
             .text = Shown(Component(first).CompText),
             .maxHeight = kMaxDescriptionHeight});
        if (canChangeFolder)
            Folder(variables_.Value(NameOf(VariableMeaning::ComponentFolder, first)),
                   Component(first).CompCanChangeDir != 0);
        Space(kOn, kOff);
        page_.focus = PageField::Components;
    }

    const section::FileComponent& Component(int number) const
    {
        return state_.setup.project.FileComponents[std::size_t(number) - 1];
    }

    void Group()
    {
        Paragraph(texts_[Message::TextProgramGroup]);
        Add({.kind = PieceKind::Entry,
             .field = PageField::Group,
             .label = texts_[Message::LabelGroup],
             .text = variables_.Expand(state_.setup.project.ProgramGroup.ProgramGroup),
             .isLabelAbove = true,
             .maxLength =
                 LongestText(section::kProgramGroup, &section::ProgramGroup::ProgramGroup)});
        PagePiece list{.kind = PieceKind::List,
                       .field = PageField::Groups,
                       .label = texts_[Message::LabelGroups]};
        const FileSystem& files = state_.input.host.files;
        RunErrorNumber([&] {
            for (const FolderEntry& entry : files.List(GroupsFolder(state_)))
                if (entry.status.isFolder && !entry.status.isHidden)
                    list.items.push_back({.text = entry.name});
        });
        Add(std::move(list));
        page_.focus = PageField::Group;
    }

    // What will be done, so that the user can go back where it is not what was meant.
    Text WithSummary() const
    {
        Text text = OwnText();
        const auto line = [&](const Text& more) {
            text += (text.empty() ? "" : Text(kLineBreak)) + more;
        };
        if (!text.empty())
            line({});
        line(texts_(Message::SummaryFolder, state_.MainFolder()));
        const Text group = variables_.Expand(state_.setup.project.ProgramGroup.ProgramGroup);
        if (state_.setup.project.DialogBoxes.ProgramGroupDlg == 1)
            line(texts_(Message::SummaryGroup, group));
        Text components;
        for (const int number : ComponentsInUse(state_.setup))
            if (state_.CanBeInstalled(number) && (Component(number).CompDefault != 0 ||
                                                  Component(number).CompMustAlwaysBeInstalled != 0))
                components += (components.empty() ? "" : ", ") + Shown(Component(number).CompName);
        if (!components.empty())
            line(texts_(Message::SummaryComponents, components));
        return text;
    }

    void Completed()
    {
        page_.buttons = PageButtons::Finish;
        page_.canGoBack = false;
        Add({.kind = PieceKind::Rest, .field = PageField::BodyText, .text = OwnText()});
        const section::ShowDocAfter& document = state_.setup.project.ShowDocAfter;
        if (document.ShowCheckBox == kOff || document.DocFileName.empty())
            return;
        Add({.kind = PieceKind::CheckBox,
             .field = PageField::ShowDocument,
             .label = document.CheckBoxText.empty() ? texts_[Message::ShowDocument]
                                                    : Shown(document.CheckBoxText),
             .isTicked = state_.showsDocument});
    }

    const PageState& state_;
    const LanguageTexts& texts_;
    const DialogBoxData& data_;
    SetupVariables variables_;
    SetupPage page_;
};

} // namespace

SetupPage MakePage(const PageState& state, PageKind kind)
{
    return PageMaker(state, kind).Make();
}

} // namespace quillon
