// The settings sections of the project file, in the order on file. Writer and reader are two
// visitors of this walk:
//   Begin(name), Keys(table, record[, number]), NumberedText(key, number, text, limit), End()
// and Section(name, table, record), which is all of these for a section that its table describes
// whole. One that is after the values alone also has AllPictures(texts), and gets the slide show's
// pictures through it, those after its count too.
#pragma once

#include "platform/run_error.h"
#include "project/design_keys.h"
#include "project/dialog_keys.h"
#include "project/install_keys.h"

namespace quillon {

inline constexpr int kAnimPictureLimit = 200;

template <class Visitor>
void VisitPictures(Visitor& visitor, section::DesPictures& pictures)
{
    visitor.Begin("DesPictures");
    int number = 0;
    for (section::DesPicture& picture : pictures.Pictures)
        visitor.Keys(section::kDesPicture, picture, ++number);
    visitor.Keys(section::kDesPictures, pictures);
    visitor.End();
}

template <class Visitor>
void VisitAnimPictures(Visitor& visitor, section::DesPicturesAnim& pictures)
{
    visitor.Begin("DesPicturesAnim");
    visitor.Keys(section::kDesPicturesAnim, pictures);
    if constexpr (requires { visitor.AllPictures(pictures.P); })
        return visitor.AllPictures(pictures.P);
    // The count on file is not looked at until it runs past the last picture that there is room
    // for.
    for (std::size_t i = 0; static_cast<Long>(i) < pictures.NrAnimPictures; ++i) {
        if (i == pictures.P.size())
            throw RunError(ErrorNumber::kSubscriptOutOfRange);
        visitor.NumberedText("P", static_cast<int>(i) + 1, pictures.P[i], kAnimPictureLimit);
    }
    visitor.End();
}

template <class Visitor>
void VisitInstallSections(Visitor& visitor, Project& project)
{
    visitor.Section("LastDirectories", section::kLastDirectories, project.LastDirectories);
    visitor.Section("ProjectName", section::kProjectName, project.ProjectName);
    visitor.Section("Version", section::kVersion, project.Version);
    visitor.Section("Media", section::kMedia, project.Media);
    visitor.Section("OperatingSystem", section::kOperatingSystem, project.OperatingSystem);
    visitor.Section("Compression", section::kCompression, project.Compression);
    visitor.Section("InstallDirectories", section::kInstallDirectories, project.InstallDirectories);
    visitor.Section("ProgramGroup", section::kProgramGroup, project.ProgramGroup);
    visitor.Section("InstallOptions", section::kInstallOptions, project.InstallOptions);
    visitor.Section("TargetOS", section::kTargetOS, project.TargetOS);
    visitor.Section("InstallOptionsInternet", section::kInstallOptionsInternet,
                    project.InstallOptionsInternet);
    visitor.Section("Sign", section::kSign, project.Sign);
    visitor.Section("NET", section::kNET, project.NET);
    visitor.Section("RunAppSelfX", section::kRunAppSelfX, project.RunAppSelfX);
    visitor.Section("Language", section::kLanguage, project.Language);
    visitor.Section("Databases", section::kDatabases, project.Databases);
    visitor.Section("RunAppAfter", section::kRunAppAfter, project.RunAppAfter);
    visitor.Section("ShowDocAfter", section::kShowDocAfter, project.ShowDocAfter);
    visitor.Section("FontOptions", section::kFontOptions, project.FontOptions);
}

template <class Visitor>
void VisitDialogSections(Visitor& visitor, Project& project)
{
    visitor.Section("DialogBoxes", section::kDialogBoxes, project.DialogBoxes);
    visitor.Section("DialogBoxData", section::kDialogBoxData, project.DialogBoxData);
    visitor.Section("LicenseData", section::kLicenseData, project.LicenseData);
    visitor.Section("RegPrivateVar", section::kRegPrivateVar, project.RegPrivateVar);
    visitor.Section("Updates", section::kUpdates, project.Updates);
}

template <class Visitor>
void VisitDesignSections(Visitor& visitor, Project& project)
{
    visitor.Section("DesBackground", section::kDesBackground, project.DesBackground);
    visitor.Section("DesTitle", section::kDesTitle, project.DesTitle);
    visitor.Section("DesTitleUnderline", section::kDesTitleUnderline, project.DesTitleUnderline);
    visitor.Section("DesSubTitle", section::kDesSubTitle, project.DesSubTitle);
    visitor.Section("DesTextBox", section::kDesTextBox, project.DesTextBox);
    visitor.Section("DesRTFbox", section::kDesRTFbox, project.DesRTFbox);
    VisitPictures(visitor, project.DesPictures);
    VisitAnimPictures(visitor, project.DesPicturesAnim);
    visitor.Section("DesLogotype", section::kDesLogotype, project.DesLogotype);
    visitor.Section("DesPercentGauge", section::kDesPercentGauge, project.DesPercentGauge);
    visitor.Section("DesSound", section::kDesSound, project.DesSound);
}

template <class Visitor>
void VisitSettingsSections(Visitor& visitor, Project& project)
{
    VisitInstallSections(visitor, project);
    VisitDialogSections(visitor, project);
    VisitDesignSections(visitor, project);
}

/// The components come among the lists, after a key of their own that says whether they follow.
template <class Visitor>
void VisitComponents(Visitor& visitor, Project& project)
{
    int number = 0;
    for (section::FileComponent& component : project.FileComponents)
        visitor.Keys(section::kFileComponent, component, ++number);
}

} // namespace quillon
