// Reads single values out of profile files by the rules of the Windows private-profile functions:
// names match without regard to case and the first match counts; a value loses the blanks round it,
// then one pair of quotation marks, then what goes beyond its limit.
#pragma once

#include "helpers/number_text.h"
#include "helpers/text.h"
#include "ini/profile_lines.h"
#include "platform/file_system.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillon {

/// Holds the current file and the current section; both stay until they are set again. With no file
/// or no such section every key is missing.
class ProfileReader {
public:
    ProfileReader() = default;
    ProfileReader(const ProfileReader&) = delete;
    ProfileReader& operator=(const ProfileReader&) = delete;

    /// Reads the file again. One that can't be read is a file without any key.
    void SetIniFile(const FileSystem& files, const Text& path);
    /// The same for a file that is already in memory.
    void SetIniBytes(std::string bytes);
    void SetIniSection(std::string_view name);

    /// `limit` is the size of the buffer: the longest value has one byte less. A limit beyond 5000
    /// gives the text "Overflow!!!".
    Text ReadIniString(std::string_view key, int limit) const;
    /// The same with limits up to 16384.
    Text ReadIniLongString(std::string_view key, int limit) const;

    // A missing key gives 0, 1 or the default; a value that starts with no number gives 0. A number
    // that the type can't hold throws RunError 6.
    Integer ReadIniInteger(std::string_view key) const { return ReadIniIntegerDefault(key, 0); }
    Integer ReadIniInteger1(std::string_view key) const { return ReadIniIntegerDefault(key, 1); }
    Integer ReadIniIntegerDefault(std::string_view key, Integer whenMissing) const;
    Long ReadIniLong(std::string_view key) const;

    /// On when the value is the number 1; every other number is off, -1 among them.
    Flag ReadIniBoolean(std::string_view key) const { return ReadFlag(key, kOff); }
    /// The same, on when the key is missing.
    Flag ReadIniBoolean1(std::string_view key) const { return ReadFlag(key, kOn); }

    bool HasKey(std::string_view key) const { return Find(key).has_value(); }

    /// The whole file, for what is no setting in it.
    std::string_view Bytes() const { return bytes_; }

private:
    struct Hash {
        std::size_t operator()(std::string_view name) const { return FoldedHash(name); }
    };
    struct Equal {
        bool operator()(std::string_view left, std::string_view right) const
        {
            return EqualFolded(left, right);
        }
    };
    // By name; both views look into `bytes_`.
    using Keys = std::unordered_map<std::string_view, std::string_view, Hash, Equal>;

    std::optional<std::string_view> Find(std::string_view key) const;
    void SelectKeys();
    Keys KeysIn(ProfileSections::Range range) const;
    Text ReadText(std::string_view key, int limit) const;
    Flag ReadFlag(std::string_view key, Flag whenMissing) const;

    std::string bytes_;
    ProfileSections sections_;
    std::string section_; // by its folded name
    // Only of the sections that were asked for: a project's longest section is its list of rows, of
    // which no key is ever read. They stay, since some files are read by going back and forth
    // between their sections.
    std::unordered_map<std::string, Keys> keysOfSections_;
    const Keys* keys_ = nullptr; // of the current section; null where the file has no such
};

} // namespace quillon
