#include "app/history/RecoveryKeeper.h"

#include "app/MainForm.h"
#include "app/history/EditHistory.h"
#include "project/packed_settings.h"

#include <QtWidgets>
#include <functional>

namespace quillon {

RecoveryKeeper::RecoveryKeeper(MainForm& form, RecoveryCopy& copy, int milliseconds)
    : form_(form), copy_(copy)
{
    timer_.setSingleShot(true);
    timer_.setInterval(milliseconds);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Keep(); });
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &timer_, [this] { Look(); });
}

// Looked at before the window waits, since any event may change the project.
void RecoveryKeeper::Look()
{
    if (form_.GetSession().state.ProjectIsDirty == kOff) {
        timer_.stop();
        kept_.reset();
        copy_.Remove();
    } else if (!timer_.isActive() && kept_ != MarkNow()) {
        timer_.start();
    }
}

void RecoveryKeeper::Keep()
{
    const Mark now = MarkNow();
    if (copy_.Keep())
        kept_ = now;
}

RecoveryKeeper::Mark RecoveryKeeper::MarkNow() const
{
    return {.revision = form_.Edits().History().Revision(),
            .settings = std::hash<Text>()(PackSettings(form_.GetSession().project))};
}

} // namespace quillon
