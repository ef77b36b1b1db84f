// The list of registry changes: what the dialogs beside it check and the lines they put at its end.
// The list itself is free text; only what a dialog adds is looked at.
#pragma once

#include "formats/registry_marks.h"
#include "helpers/number_text.h"
#include "platform/ask.h"

#include <array>
#include <string_view>

namespace quillon {

/// By the places in `ComboType`.
enum class RegistryValueType : Integer { String, Dword, Binary, Standard };
inline constexpr std::array kRegistryValueTypes = [] {
    std::array<const char*, 4> captions{};
    const auto set = [&](RegistryValueType type, const char* caption) {
        captions[static_cast<std::size_t>(type)] = caption;
    };
    set(RegistryValueType::String, "Sträng");
    set(RegistryValueType::Dword, "Värde (DWORD)");
    set(RegistryValueType::Binary, "Binär data");
    set(RegistryValueType::Standard, kDefaultValueName);
    return captions;
}();

/// A key or value to be added, as its dialog holds it.
struct RegistryEntry {
    Text root; // its name
    Text subKey;
    Text name; // empty: the key alone
    Text data;
    RegistryValueType type = RegistryValueType::String;
};

/// What a subkey becomes when a root is chosen: most of what is installed lies below one folder of
/// two roots, which the others do not have.
Text SubKeyOnChoiceOfRoot(const Text& subKey, std::string_view root);
/// What a subkey becomes when its field is left.
Text SubKeyOnLeave(const Text& subKey);
/// What the name of a value becomes when a type is chosen.
Text NameOnChoiceOfType(const Text& name, RegistryValueType type);

/// Every line needs a subkey; false, and a box, where there is none.
bool HasSubKey(const Text& subKey, Ask& ask);
/// Whether the data suits its type; where not, a box says why. Binary data is trimmed first.
bool CheckRegistryData(RegistryValueType type, Text& data, Ask& ask);

bool IsRegistryNumber(std::string_view data);
bool IsRegistryBinary(std::string_view data);

/// The line of an entry that passed the checks.
Text MakeRegistryLine(const RegistryEntry& entry);

enum class RegistryRemoval { AtInstallation, AtUninstallation };
/// The line that takes the key, or its one value, away.
Text MakeRegistryRemovalLine(RegistryRemoval when, const Text& root, const Text& subKey,
                             const Text& valueName);

/// What a new line puts at the end of the list.
Text RegistryLineToAppend(std::string_view list, const Text& line);

} // namespace quillon
