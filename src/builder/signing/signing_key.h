// Which key a program is signed with: the project's, or the one that a call of quillonc names.
#pragma once

#include "platform/file_system.h"
#include "platform/program_runner.h"
#include "project/records.h"

#include <optional>

namespace quillon {

/// What is said about signing beside the project. An empty text leaves the project's own.
struct SigningChoices {
    enum class SigningMode { OfProject, Sign, DoNotSign };
    SigningMode wish = SigningMode::OfProject;
    Text certificate;
    Text key;
    Text module; // the library of a token
    std::optional<Text> password;
    std::optional<Text> timeStamp; // an address; an empty one is no time stamp
};

struct SigningKey {
    enum class Kind {
        Pair,      // a certificate (.spc, PEM) and its key (.pvk, PEM)
        Container, // both in one file (.pfx, .p12)
        Token      // the key is in a device, behind a PKCS #11 module
    };

    Kind kind = Kind::Pair;
    Text certificate; // a file; of a token also a PKCS #11 address
    Text key;         // a file, or of a token a PKCS #11 address
    ProgramArgument module = {};
};

SigningKey KeyFor(const section::Sign& sign, const SigningChoices& choices);

/// Why nothing can be signed with the key as it stands; empty where something can. A sentence.
Text FaultOfKey(const FileSystem& files, const SigningKey& key);

/// Whether the key can be used with a password only.
bool NeedsPassword(const FileSystem& files, const SigningKey& key);

/// The key as the signing program takes it.
std::vector<ProgramArgument> KeyArguments(const SigningKey& key);

} // namespace quillon
