// `.reg` files of any content: whatever precedes it, a key that is written as Windows
// writes it is read, and one that is removed is gone; and a file read twice says what it said once.
#include "helpers/utf16.h"
#include "platform/posix/registry_files.h"
#include "require.h"

using namespace quillon;

namespace {

constexpr auto kRoot = RegistryRoot::LocalMachine;

bool IsUtf16(std::string_view bytes)
{
    return bytes.starts_with(kUtf16Bom);
}

// The lines after the bytes, in their encoding.
std::string With(std::string bytes, std::string_view lines)
{
    const bool isUtf16 = IsUtf16(bytes);
    if (isUtf16 && bytes.size() % 2 != 0)
        bytes += '\0';
    for (const char character : lines) {
        bytes += character;
        if (isUtf16)
            bytes += '\0';
    }
    return bytes;
}

std::optional<Text> Value(const RegistryFiles& registry)
{
    return registry.Read(kRoot, "Fuzz\\Key", "V");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    RegistryFiles registry;
    if (!registry.Add(bytes)) {
        Require(!registry.Read(kRoot, "", ""));
        return 0;
    }
    const std::string set = With(
        bytes, "\r\n[HKEY_LOCAL_MACHINE\\fuzz\\key]\r\n\"v\"=\"a\\\\b\"\r\n\"n\"=dword:1f\r\n");
    Require(registry.Add(set) && Value(registry) == "a\\b");
    Require(registry.Read(kRoot, "fuzz\\key", "N") == "31");
    const auto other = registry.Read(kRoot, "k", "v");
    const auto byDefault = registry.Read(RegistryRoot::ClassesRoot, "k", "");
    Require(registry.Add(set) && Value(registry) == "a\\b");
    Require(registry.Read(kRoot, "k", "v") == other);
    Require(registry.Read(RegistryRoot::ClassesRoot, "k", "") == byDefault);
    Require(registry.Add(With(bytes, "\r\n[-HKEY_LOCAL_MACHINE\\FUZZ]\r\n")) && !Value(registry));
    return 0;
}
