#include "formats/package_files.h"
#include "formats/page_layout.h"
#include "helpers/line_breaks.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"
#include "project/text_limits.h"
#include "runtime/pages/disk_space.h"
#include "runtime/pages/page_order.h"
#include "runtime/pages/page_state.h"

namespace quillon {

namespace {

using section::DialogBoxData;
using section::LicenseData;

// More than any agreement has.
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

    /// A page after the installation, without anything on it.
    SetupPage Empty()
    {
        page_.buttons = PageButtons::Finish;
        page_.canGoBack = false;
        return std::move(page_);
    }

    SetupPage Make()
    {
        switch (page_.kind) {
        case PageKind::LicenseInfo:
            Agreement(PieceKind::Paper, Shown(data_.LicenseText), data_.LicenseFootText);
            break;
        case PageKind::LicenseInfoRtf:
            Agreement(PieceKind::RichPaper, AgreementFile(), data_.LicenseFootTextRtf);
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
            Add(PieceKind::Rest, PageField::BodyText, WithSummary());
            break;
        case PageKind::InstallCompleted:
            Completed();
            break;
        default:
            Add(PieceKind::Rest, PageField::BodyText, OwnText());
        }
        return std::move(page_);
    }

private:
    // Filled in place: whole records as arguments are the larger half of this file's code.
    PagePiece& Add(PieceKind kind, PageField field, const Text& text)
    {
        PagePiece& piece = page_.pieces.emplace_back();
        piece.kind = kind;
        piece.field = field;
        piece.text = text;
        return piece;
    }
    PagePiece& AddLabelled(PieceKind kind, PageField field, Message label, const Text& text)
    {
        PagePiece& piece = Add(kind, field, text);
        piece.label = texts_[label];
        return piece;
    }
    void AddGap() { Add(PieceKind::Gap, PageField::None, {}); }

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
            Add(PieceKind::Paragraph, PageField::BodyText, text).maxHeight =
                PageLayout::kMaxTextHeight;
    }

    void Agreement(PieceKind paper, const Text& agreement, const Text& footText)
    {
        page_.buttons = PageButtons::BackYesNo;
        Add(paper, PageField::Agreement, agreement);
        if (!footText.empty())
            Add(PieceKind::Paragraph, PageField::FootText, Shown(footText)).maxHeight =
                PageLayout::kMaxFootTextHeight;
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
        AddLabelled(PieceKind::Password, PageField::Password, Message::LabelPassword,
                    state_.typedPassword)
            .maxLength = MaxTextLength(&DialogBoxData::CorrectPassword);
        AddGap();
        page_.focus = PageField::Password;
    }

    void UserEntry(PageField field, Message label, VariableMeaning meaning, Text LicenseData::*in)
    {
        AddLabelled(PieceKind::Entry, field, label, variables_.Value(NameOf(meaning))).maxLength =
            MaxTextLength(in);
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
        PagePiece& folder =
            AddLabelled(PieceKind::Entry, PageField::Folder, Message::LabelFolder, text);
        folder.isLabelAbove = true;
        folder.isEnabled = isEnabled;
        folder.maxLength = MaxTextLength(&section::InstallDirectories::DestinationDirectory);
        folder.button = texts_[Message::Browse];
        folder.buttonField = PageField::Browse;
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
        PagePiece& list = AddLabelled(PieceKind::List, PageField::Drives, Message::LabelDrive, {});
        list.selected = 0;
        for (const Text& root : InstallDrives(files)) {
            if (EqualIgnoreCase(root.substr(0, 2), state_.MainFolder().substr(0, 2)))
                list.selected = static_cast<int>(list.items.size());
            Text volume;
            RunErrorNumber([&] { volume = files.GetVolumeName(root); });
            list.items.push_back({.text = volume.empty() ? root : root + "  (" + volume + ")"});
        }
        Space(data_.DestDriveShowSizeInfo, data_.DestDriveShowSizeInfoButton);
        page_.focus = PageField::Drives;
    }

    void Space(Flag atOnce, Flag behindButton)
    {
        const Machine& machine = state_.input.host.machine;
        if (atOnce != kOff) {
            const auto free = FreeSpaceAt(state_.input.host.files, state_.MainFolder());
            AddLabelled(PieceKind::Value, PageField::NeededSpace, Message::LabelNeededSpace,
                        SpaceText(state_.Needed(), machine));
            AddLabelled(PieceKind::Value, PageField::FreeSpace, Message::LabelFreeSpace,
                        free ? SpaceText(*free, machine) : texts_[Message::SpaceUnknown]);
        }
        if (behindButton != kOff)
            AddLabelled(PieceKind::Button, PageField::SpaceBox, Message::DiskSpaceButton, {});
    }

    void Components()
    {
        Paragraph(texts_[Message::TextComponents]);
        const std::vector<int> numbers = ComponentsInUse(state_.setup);
        const auto sizes = SizesByComponent(state_.input.rows);
        PagePiece& list =
            AddLabelled(PieceKind::CheckList, PageField::Components, Message::LabelComponents, {});
        list.selected = 0;
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
        const int first = numbers.empty() ? 1 : numbers.front();
        Add(PieceKind::Paragraph, PageField::ComponentText, Shown(Component(first).CompText))
            .maxHeight = kMaxDescriptionHeight;
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
        PagePiece& group =
            AddLabelled(PieceKind::Entry, PageField::Group, Message::LabelGroup,
                        variables_.Expand(state_.setup.project.ProgramGroup.ProgramGroup));
        group.isLabelAbove = true;
        group.maxLength = MaxTextLength(&section::ProgramGroup::ProgramGroup);
        PagePiece& list = AddLabelled(PieceKind::List, PageField::Groups, Message::LabelGroups, {});
        const FileSystem& files = state_.input.host.files;
        RunErrorNumber([&] {
            for (const FolderEntry& entry : files.List(GroupsFolder(state_)))
                if (entry.status.isFolder && !entry.status.isHidden)
                    list.items.push_back({.text = entry.name});
        });
        page_.focus = PageField::Group;
    }

    // A summary, so that the user can still go back and change something.
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
        Add(PieceKind::Rest, PageField::BodyText, OwnText());
        const section::ShowDocAfter& document = state_.setup.project.ShowDocAfter;
        if (document.ShowCheckBox == kOff || document.DocFileName.empty())
            return;
        PagePiece& box =
            AddLabelled(PieceKind::CheckBox, PageField::ShowDocument, Message::ShowDocument, {});
        if (!document.CheckBoxText.empty())
            box.label = Shown(document.CheckBoxText);
        box.isTicked = state_.showsDocument;
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

SetupPage MakeDocumentPage(const PageState& state, const Text& title, const std::string& rtf)
{
    SetupPage page = PageMaker(state, PageKind::InstallCompleted).Empty();
    page.title = title;
    page.windowTitle = title.empty() ? state.ProjectTitle() : title;
    PagePiece& paper = page.pieces.emplace_back();
    paper.kind = PieceKind::RichPaper;
    paper.field = PageField::Agreement;
    paper.text = rtf;
    return page;
}

} // namespace quillon
