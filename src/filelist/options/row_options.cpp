#include "filelist/options/row_options.h"

#include "formats/copy_letters.h"
#include "helpers/windows_path.h"

namespace quillon {

namespace {

using namespace StartingLetters;

struct OptionsOfFile {
    std::string_view name;
    std::string_view options;
};

// Run-time files of Microsoft whose copies a setup must treat with care.
constexpr OptionsOfFile kRuntimeFiles[] = {
    {"OLEAUT32.DLL", kRuntimeServer},  {"OLEPRO32.DLL", kRuntimeServer},
    {"COMCAT.DLL", kRuntimeServer},    {"MSVBVM50.DLL", kRuntimeServer},
    {"MSVBVM60.DLL", kRuntimeServer},  {"MFC40.DLL", kRuntimeServer},
    {"MFC42.DLL", kRuntimeServer},     {"MSDERUN.DLL", kRuntimeServer},
    {"MSBIND.DLL", kRuntimeServer},    {"MSDBRPTR.DLL", kRuntimeServer},
    {"ASYCFILT.DLL", kRuntimeLibrary}, {"CTL3D32.DLL", kRuntimeLibrary},
    {"COMCTL32.DLL", kRuntimeLibrary}, {"COMDLG32.DLL", kRuntimeLibrary},
    {"MSVCRT.DLL", kRuntimeLibrary},   {"MSVCRT40.DLL", kRuntimeLibrary},
    {"STDOLE2.TLB", kTypeLibrary}};

} // namespace

// Kept: kinds of file are recognised by a part of the name, so `setup.exe.bak` counts as a program,
// and a later kind overrules an earlier one.
Text StartingCopyOptions(std::string_view fileName, bool useVersionRules,
                         const std::function<bool()>& hasVersion)
{
    const Text upperName = UpperCase(fileName);
    for (const OptionsOfFile& file : kRuntimeFiles)
        if (upperName == file.name)
            return Text(file.options);

    const bool isProgram = ContainsText(upperName, ".EXE");
    const bool isLibrary = ContainsText(upperName, ".DLL");
    const bool isControl = ContainsText(upperName, ".OCX");
    if (useVersionRules && (isProgram || isLibrary) && hasVersion())
        return isProgram ? kProgramWithVersion : kLibraryWithVersion;
    if (isControl)
        return kControl;
    return isLibrary ? kLibrary : kAnyFile;
}

Text StartingSystemFileOptions(std::string_view fileName, bool isRuntimeFile)
{
    if (EqualIgnoreCase(fileName, "stdole2.tlb"))
        return kTypeLibrary;
    if (EqualIgnoreCase(ExtensionFromFirstDot(fileName), "tlb"))
        return kAnyFile;
    return isRuntimeFile ? kRuntimeServer : kLibraryWithVersion;
}

} // namespace quillon
