#include "actions/forms/pages/DiskSpacePart.h"

#include "actions/preview_page.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DiskSpacePart::DiskSpacePart(const DiskSpacePreview& page, Session& session) : session_(session)
{
    auto* lines = new QVBoxLayout;
    lines->setContentsMargins(0, 0, 0, 0);
    if (page.showsSpace) {
        Named(NAMED(sNeeded), new QLabel);
        Named(NAMED(sFree), new QLabel);
        lines->addLayout(
            Fields({{"Nödvändigt diskutrymme:", sNeeded}, {"Ledigt diskutrymme:", sFree}}).layout);
    }
    if (page.hasSpaceButton) {
        Named(NAMED(cmdDiskSpace), new QPushButton("&Diskutrymme..."));
        cmdDiskSpace->setAutoDefault(false);
        connect(cmdDiskSpace, &QPushButton::clicked, this, [this] { TellInBox(); });
        lines->addLayout(HBox({cmdDiskSpace, Stretch()}).layout);
    }
    setLayout(lines);
}

void DiskSpacePart::ShowFor(const Text& folder)
{
    folder_ = folder;
    if (!sFree)
        return;
    sNeeded->setText(ToQt(Needed()));
    sFree->setText(ToQt(FreeSpaceText(session_.host, folder_)));
}

Text DiskSpacePart::Needed()
{
    if (!needed_)
        needed_ = NeededSpaceText(session_.project, session_.host, session_.ask);
    return *needed_;
}

void DiskSpacePart::TellInBox()
{
    session_.ask.Inform("Diskutrymme",
                        "Nödvändigt diskutrymme: " + Needed() +
                            "\r\nLedigt diskutrymme: " + FreeSpaceText(session_.host, folder_));
}

} // namespace quillon
