// An open key of the registry.
#pragma once

#include "platform/machine.h"

#include <windows.h>

namespace quillon {

class OpenKey {
public:
    /// The root itself where the path is empty. A key that can't be opened is not open.
    OpenKey(RegistryRoot root, const Text& subKey, REGSAM access = KEY_READ);
    ~OpenKey();
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;

    bool IsOpen() const { return key_ != nullptr; }
    HKEY Get() const { return key_; }
    /// What Windows said when the key was opened.
    LONG Status() const { return status_; }

    /// A text value as it stands, or expanded where it is of that type.
    std::optional<Text> ReadText(const Text& name) const;

private:
    HKEY key_ = nullptr;
    LONG status_;
};

/// The root's handle; nothing for a root that this system does not have.
HKEY RootHandle(RegistryRoot root);

} // namespace quillon
