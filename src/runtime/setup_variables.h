// The variables of a project's texts: '%' and a word in capitals. They are expanded here and
// nowhere else, with what they mean on the machine that the product is installed on.
#pragma once

#include "formats/setup_information.h"
#include "formats/variable_names.h"
#include "platform/host.h"
#include "runtime/install_scope.h"
#include "runtime/target.h"

#include <utility>
#include <vector>

namespace quillon {

class SetupVariables {
public:
    /// `name` begins with '%'.
    void Set(std::string_view name, std::string_view value);
    void Set(VariableMeaning meaning, std::string_view value) { Set(NameOf(meaning), value); }
    Text Value(std::string_view name) const;

    /// Replaces each known variable; where two names fit, the longer one is meant. A word that is
    /// no variable stays as it stands, and what a value brings in is not expanded again.
    Text Expand(std::string_view text) const;
    /// The same for a path: double backslashes made single, none at the end but a root's.
    Text ExpandPath(std::string_view path) const;

private:
    std::vector<std::pair<Text, Text>> values_;
};

struct VariableSources {
    const SetupInformation& setup;
    const Host& host;
    const Target& target;
    Text packageFolder;
    Text destination; // from the command line; empty: the package's own
    InstallScope scope = InstallScope::Project;
};

/// The names of the registration page before the user has changed them.
section::LicenseData ProposedUser(const SetupInformation& setup, const Machine& machine);

SetupVariables MakeSetupVariables(const VariableSources& sources);

/// The text of the registry value that a private variable names: "HKEY_...\key :: name", or the
/// key alone for its default value, or the key with the value's name as its last part.
Text PrivateVariableValue(const Machine& machine, std::string_view place);

} // namespace quillon
