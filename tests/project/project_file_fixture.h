// What the tests of the project file share: a machine with a tool folder, a project on disk and
// the golden files.
#pragma once

#include "project/project_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <string>

namespace quillon::test {

inline constexpr const char* kToolFolder = "C:\\QUILLON";
inline constexpr const char* kDefaultBitmap = "C:\\Quillon\\Res\\SetupDef.bmp";
inline constexpr const char* kPath = "C:\\Projekt\\prov.qnp";

/// The bytes of a file below tests/golden/project/.
std::string GoldenBytes(const std::string& name);
/// The two that most tests start from: a project with something in every field, and a new one.
std::string Full();
std::string Empty();

Project NewProject();

/// The bytes with the first occurrence of `from` replaced; fails the test when there is none.
std::string With(std::string bytes, const std::string& from, const std::string& to);

/// Without the whole section, up to the next header.
std::string WithoutSection(std::string bytes, const std::string& name);

/// The file with the value of one key replaced, and that value; keys are looked for as they are
/// written, "Key = value". Both fail the test when the key is missing.
std::string WithValue(const std::string& bytes, const std::string& section, const std::string& key,
                      const std::string& value);
std::string ValueIn(const std::string& bytes, const std::string& section, const std::string& key);

/// The file without the line of one key.
std::string WithoutKey(const std::string& bytes, const std::string& section,
                       const std::string& key);

/// A project file on a machine in memory, to be read and written.
struct ProjectOnDisk {
    ProjectOnDisk();

    /// Reads these bytes; boxes go to `ask`.
    ReadEnd Load(const std::string& bytes, ScriptedAsk& ask);
    /// The same where no box may come up.
    ReadEnd Load(const std::string& bytes);
    std::string Save();
    /// A load that must come to its good end, and a save.
    std::string Resave(const std::string& bytes);

    MemoryHost machine;
    Project project = NewProject();
    int beeps = 0; // of the last load
};

} // namespace quillon::test
