// Keeps a copy of the unsaved project while the user works.
#pragma once

#include "shell/recovery.h"

#include <QTimer>
#include <optional>

namespace quillon {

class MainForm;

class RecoveryKeeper {
public:
    /// A change is in the copy at most `milliseconds` after it was made. The copy goes when the
    /// project counts as saved.
    RecoveryKeeper(MainForm& form, RecoveryCopy& copy, int milliseconds = kRecoverySeconds * 1000);

    /// Writes the copy now, even where it holds this state already.
    void Keep();

private:
    // Distinguishes one content of the project from another.
    struct Mark {
        std::uint64_t revision;
        std::size_t settings; // also those that are being typed
        bool operator==(const Mark&) const = default;
    };

    void Look();
    Mark MarkNow() const;

    MainForm& form_;
    RecoveryCopy& copy_;
    QTimer timer_;
    std::optional<Mark> kept_;
};

} // namespace quillon
