#include "builder/signing/signing_key.h"

#include "helpers/hex.h"
#include "helpers/windows_path.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

namespace {

using Kind = ProgramArgument::Kind;

constexpr std::string_view kTokenScheme = "pkcs11:"; // RFC 7512
constexpr std::string_view kModuleAttribute = "module-path=";
constexpr std::string_view kPinAttribute = "pin-value=";

bool IsTokenAddress(const Text& key)
{
    return LowerCase(key).starts_with(kTokenScheme);
}

bool IsContainer(const Text& file)
{
    const Text name = LowerCase(file);
    return name.ends_with(".pfx") || name.ends_with(".p12");
}

/// What an address says after its "?".
std::string_view QueryOf(std::string_view address)
{
    const std::size_t mark = address.find('?');
    return mark == std::string_view::npos ? std::string_view() : address.substr(mark + 1);
}

Text WithoutPercents(std::string_view text)
{
    Text plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool canBeCoded = text[i] == '%' && i + 2 < text.size();
        const int byte = canBeCoded ? HexByteValue(text[i + 1], text[i + 2]) : -1;
        plain += byte >= 0 ? static_cast<char>(byte) : text[i];
        i += byte >= 0 ? 2 : 0;
    }
    return plain;
}

/// The module that the address itself names, as a path of the machine that has it.
Text ModuleIn(std::string_view address)
{
    const std::string_view query = QueryOf(address);
    const std::size_t begin = query.find(kModuleAttribute);
    if (begin == std::string_view::npos)
        return {};
    const std::string_view rest = query.substr(begin + kModuleAttribute.size());
    return WithoutPercents(rest.substr(0, rest.find('&')));
}

Text WithoutQuery(const Text& address)
{
    return address.substr(0, address.find('?'));
}

Text FaultOfFile(const FileSystem& files, const Text& what, const Text& path, const Text& field)
{
    if (path.empty())
        return what + " saknas: ange en fil " + field + ".";
    return files.FileExists(path) ? Text() : what + " '" + path + "' finns inte.";
}

Text FaultOfToken(const FileSystem& files, const SigningKey& key)
{
    for (const Text& address : {key.certificate, key.key})
        if (QueryOf(address).find(kPinAttribute) != std::string_view::npos)
            return "PIN-koden får inte stå i nyckelns adress.";
    const Text& module = key.module.text;
    if (module.empty())
        return "PKCS#11-modulen saknas: ange den med --sign-module, eller som module-path i "
               "nyckelns adress.";
    if (key.module.kind == Kind::Path && !files.FileExists(module))
        return "PKCS#11-modulen '" + module + "' finns inte.";
    return IsTokenAddress(key.certificate)
               ? Text()
               : FaultOfFile(files, "Certifikatet", key.certificate, "eller en pkcs11-adress");
}

// Tells all kinds of keys apart.
constexpr std::size_t kBeginningSize = 8192;

// Bytes 12 to 15 of a .pvk say whether it is encrypted, and 16 to 19 how long its salt is.
bool IsLockedPvk(std::string_view bytes)
{
    constexpr std::string_view kMark = "\x1E\xF1\xB5\xB0";
    return bytes.size() >= 24 && bytes.starts_with(kMark) &&
           std::ranges::any_of(bytes.substr(12, 8), [](char byte) { return byte != 0; });
}

} // namespace

SigningKey KeyFor(const section::Sign& sign, const SigningChoices& choices)
{
    // A named certificate has its own key, or contains it.
    const bool namesCertificate = !choices.certificate.empty();
    SigningKey key;
    key.certificate = namesCertificate ? choices.certificate : sign.SignSPCFilename;
    key.key = namesCertificate || !choices.key.empty() ? choices.key : sign.SignPVKFilename;
    if (IsTokenAddress(key.key)) {
        key.kind = SigningKey::Kind::Token;
        key.module = choices.module.empty() ? ProgramArgument{ModuleIn(key.key), Kind::Plain}
                                            : ProgramArgument{choices.module, Kind::Path};
    } else if (IsContainer(key.certificate)) {
        key.kind = SigningKey::Kind::Container;
    }
    return key;
}

Text FaultOfKey(const FileSystem& files, const SigningKey& key)
{
    if (key.kind == SigningKey::Kind::Token)
        return FaultOfToken(files, key);
    const Text certificate =
        FaultOfFile(files, "Certifikatet", key.certificate, "på fliken Signering");
    if (!certificate.empty() || key.kind == SigningKey::Kind::Container)
        return certificate;
    return FaultOfFile(files, "Den privata nyckeln", key.key, "på fliken Signering");
}

bool NeedsPassword(const FileSystem& files, const SigningKey& key)
{
    if (key.kind != SigningKey::Kind::Pair)
        return true;
    const std::string bytes = ReadBeginning(files, key.key, kBeginningSize);
    return IsLockedPvk(bytes) || bytes.find("ENCRYPTED") != std::string::npos;
}

std::vector<ProgramArgument> KeyArguments(const SigningKey& key)
{
    switch (key.kind) {
    case SigningKey::Kind::Container:
        return {{"-pkcs12"}, {key.certificate, Kind::Path}};
    case SigningKey::Kind::Token: {
        std::vector<ProgramArgument> arguments{{"-pkcs11module"}, key.module};
        if (IsTokenAddress(key.certificate))
            arguments.insert(arguments.end(), {{"-pkcs11cert"}, {WithoutQuery(key.certificate)}});
        else
            arguments.insert(arguments.end(), {{"-certs"}, {key.certificate, Kind::Path}});
        arguments.insert(arguments.end(), {{"-key"}, {WithoutQuery(key.key)}});
        return arguments;
    }
    case SigningKey::Kind::Pair:
        break;
    }
    return {{"-certs"}, {key.certificate, Kind::Path}, {"-key"}, {key.key, Kind::Path}};
}

} // namespace quillon
