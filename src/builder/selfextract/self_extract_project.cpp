#include "builder/selfextract/self_extract_project.h"

#include "helpers/number_text.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

namespace quillon {

namespace {

constexpr std::string_view kHeading = "Quillon self-extracting program 1\r\n";

struct Escape {
    char character;
    char letter;
};
constexpr Escape kEscapes[] = {{'\r', 'r'}, {'\n', 'n'}, {'\\', '\\'}};

Text Escaped(std::string_view text)
{
    Text escaped;
    for (const char c : text) {
        bool isWritten = false;
        for (const Escape& escape : kEscapes)
            if (c == escape.character) {
                escaped += {'\\', escape.letter};
                isWritten = true;
            }
        if (!isWritten)
            escaped += c;
    }
    return escaped;
}

Text Unescaped(std::string_view text)
{
    Text plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            plain += text[i];
            continue;
        }
        ++i;
        for (const Escape& escape : kEscapes)
            if (text[i] == escape.letter)
                plain += escape.character;
    }
    return plain;
}

} // namespace

void WriteSelfExtractProject(FileSystem& files, const Text& path,
                             const SelfExtractAttributes& attributes)
{
    std::string bytes(kHeading);
    for (const auto& [number, value] : attributes)
        bytes += NumberText(number) + "=" + Escaped(value) + "\r\n";
    WriteWholeFile(files, path, bytes);
}

SelfExtractAttributes ReadSelfExtractProject(const FileSystem& files, const Text& path)
{
    const std::string bytes = ReadWholeFile(files, path);
    if (!bytes.starts_with(kHeading))
        throw RunError(ErrorNumber::kDeviceIo, path);
    SelfExtractAttributes attributes;
    std::string_view rest = std::string_view(bytes).substr(kHeading.size());
    while (!rest.empty()) {
        const std::size_t end = rest.find("\r\n");
        const std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == rest.npos ? rest.size() : end + 2);
        const std::size_t equals = line.find('=');
        const auto number = equals == line.npos || equals > 6
                                ? std::nullopt
                                : WholeNumber<std::uint32_t>(line.substr(0, equals));
        if (!number)
            throw RunError(ErrorNumber::kDeviceIo, path);
        attributes.emplace_back(*number, Unescaped(line.substr(equals + 1)));
    }
    return attributes;
}

bool IsSelfExtractProject(const FileSystem& files, const Text& path)
{
    std::string beginning;
    RunErrorNumber([&] { beginning = ReadBeginning(files, path, kHeading.size()); });
    return beginning == kHeading;
}

Text AttributeOf(const SelfExtractAttributes& attributes, std::uint32_t number)
{
    Text value;
    for (const auto& [key, text] : attributes)
        if (key == number)
            value = text;
    return value;
}

} // namespace quillon
