// The files that the programs of Visual Basic 5 and 6 need beside what their projects name, in the
// order in which an import adds them.
#pragma once

#include "formats/copy_letters.h"

#include <span>
#include <string_view>

namespace quillon {

/// Taken from a folder of files for redistribution; the copy options are the row's own.
struct RedistFile {
    std::string_view name;
    std::string_view copyOptions;
};

/// Taken from the system folder.
struct SystemFile {
    std::string_view name;
    bool isRuntimeFile;
};

// clang-format off
inline constexpr RedistFile kVb6RedistFiles[] = {
    {"ASYCFILT.dll", StartingLetters::kRuntimeLibrary},
    {"COMCAT.dll",   StartingLetters::kRuntimeServer},
    {"OLEPRO32.dll", StartingLetters::kRuntimeServer},
    {"OLEAUT32.dll", StartingLetters::kRuntimeServer},
    {"STDOLE2.tlb",  StartingLetters::kTypeLibrary},
};

inline constexpr RedistFile kVb5RedistFiles[] = {
    {"AsycFilt.dll", StartingLetters::kRuntimeLibrary},
    {"ComCat.dll",   StartingLetters::kRuntimeServer},
    {"Ctl3d32.dll",  StartingLetters::kRuntimeLibrary},
    {"OleAut32.dll", StartingLetters::kRuntimeServer},
    {"OlePro32.dll", StartingLetters::kRuntimeServer},
    {"StdOle2.tlb",  StartingLetters::kTypeLibraryByDate},
};

inline constexpr RedistFile kVb6Dao35RedistFile = {"MSVCRT40.dll", StartingLetters::kTypeLibrary};

inline constexpr SystemFile kVb6Runtime[] = {{"MSVBVM60.dll", true}};
inline constexpr SystemFile kVb5Runtime[] = {{"MSVBVM50.dll", true}};

inline constexpr SystemFile kVb6Dao35Files[] = {
    {"VB5DB.dll",    false},
    {"MsRepl35.dll", false},
    {"MSRD2x35.dll", true},
    {"EXPSRV.dll",   false},
    {"VBAJet32.dll", false},
    {"MSJInt35.dll", false},
    {"MSJtEr35.dll", false},
    {"MSJet35.dll",  true},
};

inline constexpr SystemFile kVb5Dao35Files[] = {
    {"MSJtEr35.dll", false},
    {"MSJInt35.dll", false},
    {"MSVCRT40.dll", false},
    {"MSJet35.dll",  true},
    {"VBAJet32.dll", false},
    {"VB5DB.dll",    false},
    {"MSRD2x35.dll", true},
    {"MsRepl35.dll", false},
    {"ODBCJt32.dll", false},
    {"ODBCJI32.dll", false},
    {"ODBCTL32.dll", false},
};

inline constexpr SystemFile kVb6Dao36Files[] = {
    {"VB5DB.dll",    false},
    {"msjtes40.dll", true},
    {"msrepl40.dll", false},
    {"msrd3x40.dll", true},
    {"msrd2x40.dll", true},
    {"mswdat10.dll", false},
    {"mswstr10.dll", false},
    {"ExpSrv.dll",   false},
    {"VBAJET32.dll", false},
    {"msjint40.dll", false},
    {"msjter40.dll", false},
    {"msjet40.dll",  true},
};

inline constexpr SystemFile kAdoFiles[] = {
    {"MSSTDFMT.DLL", true},
    {"MSADODC.OCX",  true},
};

inline constexpr SystemFile kRdoFiles[] = {
    {"MSSTDFMT.DLL", true},
    {"RDOCURS.DLL",  false},
    {"MSRDC20.OCX",  true},
};

// The first one registers itself, the second one can't.
inline constexpr SystemFile kMfcFiles[] = {
    {"Mfc42.dll",  true},
    {"Msvcrt.dll", false},
};
// clang-format on

} // namespace quillon
