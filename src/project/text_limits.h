// How long the text of a field may be, by the key tables. A window takes no more than comes back.
#pragma once

#include "project/design_keys.h"
#include "project/dialog_keys.h"
#include "project/install_keys.h"

namespace quillon {

namespace section {

// clang-format off
inline const auto& KeysOf(Text DesBackground::*)          { return kDesBackground; }
inline const auto& KeysOf(Text DesRTFbox::*)              { return kDesRTFbox; }
inline const auto& KeysOf(Text DesSubTitle::*)            { return kDesSubTitle; }
inline const auto& KeysOf(Text DesTextBox::*)             { return kDesTextBox; }
inline const auto& KeysOf(Text DesTitle::*)               { return kDesTitle; }
inline const auto& KeysOf(Text DialogBoxData::*)          { return kDialogBoxData; }
inline const auto& KeysOf(Text DialogBoxes::*)            { return kDialogBoxes; }
inline const auto& KeysOf(Text FileComponent::*)          { return kFileComponent; }
inline const auto& KeysOf(Text InstallDirectories::*)     { return kInstallDirectories; }
inline const auto& KeysOf(Text InstallOptionsInternet::*) { return kInstallOptionsInternet; }
inline const auto& KeysOf(Text Language::*)               { return kLanguage; }
inline const auto& KeysOf(Text LastDirectories::*)        { return kLastDirectories; }
inline const auto& KeysOf(Text LicenseData::*)            { return kLicenseData; }
inline const auto& KeysOf(Text ProgramGroup::*)           { return kProgramGroup; }
inline const auto& KeysOf(Text ProjectName::*)            { return kProjectName; }
inline const auto& KeysOf(Text RegPrivateVar::*)          { return kRegPrivateVar; }
inline const auto& KeysOf(Text RunAppAfter::*)            { return kRunAppAfter; }
inline const auto& KeysOf(Text RunAppSelfX::*)            { return kRunAppSelfX; }
inline const auto& KeysOf(Text ShowDocAfter::*)           { return kShowDocAfter; }
inline const auto& KeysOf(Text Sign::*)                   { return kSign; }
inline const auto& KeysOf(Text Updates::*)                { return kUpdates; }
inline const auto& KeysOf(Text Version::*)                { return kVersion; }
// clang-format on

} // namespace section

/// In bytes on file.
template <class Section>
int MaxTextLength(Text Section::*field)
{
    return MaxTextLength(section::KeysOf(field), field);
}

} // namespace quillon
