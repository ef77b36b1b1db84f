#include "app/pages/ProjectHeader.h"

#include "app/pages/in_place.h"
#include "filelist/main_directory.h"
#include "project/text_limits.h"
#include "ui/controls/complete_variable.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

ProjectHeader::ProjectHeader(Session& session) : session_(session)
{
    using namespace section;
    setObjectName("ProjectHeader");
    Project& project = session.project;
    auto* name = EditInPlace(NAMED(tProjectName), session, project.ProjectName.ProjectName,
                             MaxTextLength(&section::ProjectName::ProjectName));
    auto* folder = EditInPlace(NAMED(tDestinationDirectory), session,
                               project.InstallDirectories.DestinationDirectory,
                               MaxTextLength(&InstallDirectories::DestinationDirectory));
    CompleteVariables(folder, PrefixTable::MainFolder);
    OnLeave(folder, [this] { LeaveDestinationDirectory(); });
    Arrange(this, Fields({{"&Projektnamn:", name}, {"Huvud&katalog:", folder}}));
    // It is inside a page that has margins of its own.
    layout()->setContentsMargins({});
}

void ProjectHeader::ShowSession()
{
    ShowInPlace(tProjectName, session_.project.ProjectName.ProjectName);
    ShowInPlace(tDestinationDirectory, session_.project.InstallDirectories.DestinationDirectory);
}

void ProjectHeader::LeaveDestinationDirectory()
{
    const Text typed = FromQt(tDestinationDirectory->text());
    const Text checked = CheckMainDirectory(typed, session_.ask);
    if (checked != typed)
        tDestinationDirectory->setText(ToQt(checked));
}

} // namespace quillon
