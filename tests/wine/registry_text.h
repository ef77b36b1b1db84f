// A prefix's registry as its files hold it once the server has ended.
#pragma once

#include "wine/wine.h"

#include <map>
#include <optional>
#include <string>

namespace quillon::test {

/// Values of a key by lower-cased name; the default value's name is empty. A text stands as it is,
/// all else in the form of the file, such as `dword:00000005` or `hex:a2,ff,32`.
using RegistryValues = std::map<std::string, std::string>;

class RegistryText {
public:
    /// Ends the prefix's server first.
    explicit RegistryText(const WinePrefix& prefix);

    /// `key` begins with HKCU or HKLM; nothing where the key or the value is missing.
    std::optional<std::string> Value(const std::string& key, const std::string& name) const;
    bool HasKey(const std::string& key) const;
    /// All keys, lower-cased, with their values.
    const std::map<std::string, RegistryValues>& Keys() const { return keys_; }

private:
    void Read(const std::filesystem::path& file, const std::string& root);

    std::map<std::string, RegistryValues> keys_;
};

/// What differs between two registries, a line each; keys that Wine itself keeps changing are left
/// out.
std::string RegistryDifference(const RegistryText& before, const RegistryText& after);

} // namespace quillon::test
