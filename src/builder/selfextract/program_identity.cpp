#include "builder/selfextract/program_identity.h"

#include "helpers/little_endian.h"
#include "helpers/number_text.h"
#include "helpers/utf16.h"

#include <array>
#include <cstdint>

namespace quillon {

namespace {

void Align(std::string& bytes)
{
    bytes.resize((bytes.size() + 3) / 4 * 4, '\0');
}

enum class Holds { Binary = 0, Text = 1 };

// `valueLength` counts characters of a text and bytes of anything else.
std::string Block(const Text& name, Holds kind, const std::string& value, std::size_t valueLength,
                  const std::string& parts = {})
{
    std::string block;
    AppendNumber(block, std::uint16_t{0});
    AppendNumber(block, static_cast<std::uint16_t>(valueLength));
    AppendNumber(block, static_cast<std::uint16_t>(kind));
    block += ToUtf16(name) + std::string(2, '\0');
    Align(block);
    block += value;
    if (!parts.empty()) {
        Align(block);
        block += parts;
    }
    SetNumber(block, 0, static_cast<std::uint16_t>(block.size()));
    return block;
}

std::string TextBlock(const Text& name, const Text& text)
{
    // The whole resource counts its bytes in 16 bits.
    constexpr std::size_t kMaxCharacters = 1000;
    const std::string value = ToUtf16(FirstCharacters(text, kMaxCharacters)) + std::string(2, '\0');
    std::string block = Block(name, Holds::Text, value, value.size() / 2);
    Align(block);
    return block;
}

/// The numbers of a text such as "2.1 beta"; what is no number is 0.
std::array<std::uint16_t, 4> Numbers(std::string_view version)
{
    std::array<std::uint16_t, 4> numbers{};
    std::size_t part = 0;
    for (const char c : version) {
        if (c == '.' && ++part == numbers.size())
            break;
        if (c == '.')
            continue;
        if (c < '0' || c > '9')
            break;
        const unsigned number = numbers[part] * 10U + static_cast<unsigned>(c - '0');
        numbers[part] = static_cast<std::uint16_t>(number > 0xFFFF ? 0xFFFFU : number);
    }
    return numbers;
}

std::string FixedNumbers(const ProgramIdentity& identity)
{
    const auto numbers = Numbers(identity.version);
    const std::uint32_t high = std::uint32_t(numbers[0]) << 16U | numbers[1];
    const std::uint32_t low = std::uint32_t(numbers[2]) << 16U | numbers[3];
    constexpr std::uint32_t kMark = 0xFEEF04BD;
    constexpr std::uint32_t kStructure = 0x10000;
    constexpr std::uint32_t kFlagMask = 0x3F;
    constexpr std::uint32_t kWindows = 0x40004;
    constexpr std::uint32_t kApplication = 1;
    std::string fixed;
    for (const std::uint32_t number : {kMark, kStructure, high, low, high, low, kFlagMask, 0U,
                                       kWindows, kApplication, 0U, 0U, 0U})
        AppendNumber(fixed, number);
    return fixed;
}

Text EscapedXml(std::string_view text)
{
    Text escaped;
    for (const char c : text) {
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (static_cast<unsigned char>(c) >= ' ')
            escaped += c;
    }
    return escaped;
}

/// The name of an assembly has a few characters alone.
Text AssemblyName(const ProgramIdentity& identity)
{
    Text name;
    for (const char c : identity.company + "." + identity.product) {
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (isLetter || (c >= '0' && c <= '9') || c == '.' || c == '-')
            name += c;
    }
    return name.empty() || name == "." ? Text("Setup") : name;
}

} // namespace

std::string VersionResource(const ProgramIdentity& identity)
{
    std::string texts;
    const std::pair<const char*, Text> named[] = {
        {"CompanyName", identity.company}, {"FileDescription", identity.description},
        {"FileVersion", identity.version}, {"OriginalFilename", identity.fileName},
        {"ProductName", identity.product}, {"ProductVersion", identity.version}};
    for (const auto& [name, text] : named)
        if (!text.empty())
            texts += TextBlock(name, text);
    // The language that is none, in UTF-16.
    const std::string table = Block("000004b0", Holds::Text, {}, 0, texts);
    std::string parts = Block("StringFileInfo", Holds::Text, {}, 0, table);
    Align(parts);
    std::string translation;
    AppendNumber(translation, std::uint16_t{0});
    AppendNumber(translation, std::uint16_t{1200});
    parts += Block("VarFileInfo", Holds::Text, {}, 0,
                   Block("Translation", Holds::Binary, translation, translation.size()));
    const std::string fixed = FixedNumbers(identity);
    return Block("VS_VERSION_INFO", Holds::Binary, fixed, fixed.size(), parts);
}

std::string ProgramManifest(const ProgramIdentity& identity)
{
    const auto numbers = Numbers(identity.version);
    Text version;
    for (const std::uint16_t number : numbers)
        version.append(version.empty() ? "" : ".").append(NumberText(number));
    return R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
<assemblyIdentity type="win32" name=")" +
           AssemblyName(identity) + R"(" version=")" + version + R"(" processorArchitecture="*"/>
<description>)" +
           EscapedXml(identity.description) + R"(</description>
<dependency><dependentAssembly>
<assemblyIdentity type="win32" name="Microsoft.Windows.Common-Controls" version="6.0.0.0" processorArchitecture="*" publicKeyToken="6595b64144ccf1df" language="*"/>
</dependentAssembly></dependency>
<trustInfo xmlns="urn:schemas-microsoft-com:asm.v3"><security><requestedPrivileges>
<requestedExecutionLevel level="asInvoker" uiAccess="false"/>
</requestedPrivileges></security></trustInfo>
<compatibility xmlns="urn:schemas-microsoft-com:compatibility.v1"><application>
<supportedOS Id="{35138b9a-5d96-4fbd-8e2d-a2440225f93a}"/>
<supportedOS Id="{1f676c76-80e1-4239-95bb-83d0f6d0da78}"/>
<supportedOS Id="{8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a}"/>
</application></compatibility>
</assembly>
)";
}

} // namespace quillon
