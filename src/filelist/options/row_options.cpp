#include "filelist/options/row_options.h"

#include "helpers/windows_path.h"

namespace quillon {

namespace {

struct OptionsOfFile {
    std::string_view name;
    std::string_view options;
};

// Run-time files of Microsoft whose copies a setup must treat with care.
constexpr OptionsOfFile kRuntimeFiles[] = {
    {"OLEAUT32.DLL", "VRAW"}, {"OLEPRO32.DLL", "VRAW"}, {"COMCAT.DLL", "VRAW"},
    {"MSVBVM50.DLL", "VRAW"}, {"MSVBVM60.DLL", "VRAW"}, {"MFC40.DLL", "VRAW"},
    {"MFC42.DLL", "VRAW"},    {"MSDERUN.DLL", "VRAW"},  {"MSBIND.DLL", "VRAW"},
    {"MSDBRPTR.DLL", "VRAW"}, {"ASYCFILT.DLL", "VAWE"}, {"CTL3D32.DLL", "VAWE"},
    {"COMCTL32.DLL", "VAWE"}, {"COMDLG32.DLL", "VAWE"}, {"MSVCRT.DLL", "VAWE"},
    {"MSVCRT40.DLL", "VAWE"}, {"STDOLE2.TLB", "VAW"}};

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
        return isProgram ? "V" : "VA";
    if (isControl)
        return "VRA";
    return isLibrary ? "DA" : "D";
}

Text StartingSystemFileOptions(std::string_view fileName, bool isRuntimeFile)
{
    if (EqualIgnoreCase(fileName, "stdole2.tlb"))
        return "VAW";
    if (EqualIgnoreCase(ExtensionFromFirstDot(fileName), "tlb"))
        return "D";
    return isRuntimeFile ? "VRAW" : "VA";
}

} // namespace quillon
