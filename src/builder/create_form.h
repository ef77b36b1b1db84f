// What the form of the Create command holds, and the rules between its controls. The window shows
// it, and the command-line program fills it from its switches.
#pragma once

#include "formats/package_files.h"
#include "project/records.h"

#include <array>

namespace quillon {

struct MediumChoice {
    Medium medium;
    const char* radioButton;
    const char* caption;
    const char* word; // in the status lines
    // Where the last folder for this medium is kept; the floppy has none.
    Text section::LastDirectories::*lastFolder;
};

// clang-format off
inline constexpr std::array<MediumChoice, 4> kMedia{{
    {Medium::Floppy,       "oFloppy",        "&Diskett",                "diskett",                 nullptr},
    {Medium::CompressedCd, "oCD_Compress",   "&CD/DVD",                 "CD (komprimerat)",        &section::LastDirectories::LastDir_Create_CdCompress},
    {Medium::CdTree,       "oCD_NoCompress", "CD/DVD (fä&rdigt träd)",  "CD (träd, okomprimerat)", &section::LastDirectories::LastDir_Create_CdTree},
    {Medium::Internet,     "oInternet",      "&Internet",               "Internet",                &section::LastDirectories::LastDir_Create_Internet},
}};
// clang-format on

/// What the form offers for this medium.
const MediumChoice& ChoiceOf(Medium medium);

/// The rows of `cbOS`; the place in this list is `TargetOperatingSystem`.
inline constexpr std::array<const char*, 2> kTargetOperatingSystems{
    "Alla Windows-versioner (fr.o.m Windows 95)", "Endast Windows ME, Windows 2000 och Windows XP"};

struct CreateForm {
    Text tDestinationDir;
    Medium TargetMedia = Medium::CompressedCd; // the radio button that is selected
    Integer cbOS = 0;
    Integer UseCompression = 1;               // 0 or 1
    Integer KeepCompressedFilesOneAndOne = 0; // 0 or 1
    Integer SmallContainer = 0;               // 0 or 1

    bool isCmdSelectDirectoryEnabled = true;
    // Off while Create runs.
    bool isCmdCreateEnabled = true;
    bool isCmdOptionsEnabled = true;
};

/// The form as it opens. A project that names no medium or system gets the ones of a new project.
/// Kept: opening copies the destination folder to the last folder of the medium, and does not mark
/// the project changed by that.
CreateForm OpenCreateForm(Project& project, OpenProjectState& state);

/// Puts the form's choices back into the project when it closes.
void CloseCreateForm(const CreateForm& form, Project& project);

/// A click on the radio button of this medium.
void ClickMedium(CreateForm& form, Medium medium, Project& project, OpenProjectState& state);

/// Any change of the text in `tDestinationDir`, typed or chosen.
void ChangeDestinationDir(CreateForm& form, const Text& folder, Project& project,
                          OpenProjectState& state);

/// Why no package can be made of what the form holds, which it says before anything is written; an
/// empty text where one can.
Text CreateObstacle(const CreateForm& form);

/// True where FILEDATA.DAT becomes a solid container: what the medium or another choice does not
/// allow has no effect.
bool MakesSmallContainer(const CreateForm& form);

/// How far a long step is: "12,3 av 45,6 MB".
Text ProgressText(std::uint64_t done, std::uint64_t total, char decimalSign);

/// The dialog of `cmdCompressOptions`.
struct CompressOptionsForm {
    Integer cUseCompression = 0;
    Integer cKeepCompressedFilesOneAndOne = 0;
    Integer cSmallContainer = 0;
    bool isCUseCompressionEnabled = true;
    bool isCKeepCompressedFilesOneAndOneEnabled = true;
    bool isCd = true;

    // A small container needs compression of all files together.
    bool IsCSmallContainerEnabled() const { return isCd && cUseCompression != 0; }
};

CompressOptionsForm OpenCompressOptions(const CreateForm& form);
void ClickKeepCompressedFilesOneAndOne(CompressOptionsForm& options, Integer value);
/// OK; Cancel stores nothing.
void StoreCompressOptions(const CompressOptionsForm& options, CreateForm& form);

} // namespace quillon
