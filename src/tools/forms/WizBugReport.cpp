#include "tools/forms/WizBugReport.h"

#include "shell/session.h"
#include "tools/forms/WizBugReportQuestions.h"
#include "tools/forms/WizBugReportReport.h"

#include <QtWidgets>

namespace quillon {

WizBugReportPage::WizBugReportPage(const char* name, const Text& title, BugReportWizard& wizard,
                                   QWidget* parent)
    : Form(name, title, parent), wizard_(wizard)
{
}

Piece WizBugReportPage::StepButtons(Steps steps)
{
    const bool isLast = steps == Steps::PreviousAndClose;
    Button(NAMED(cmdPrev), "‹ &Bakåt", [this] { GoBack(); });
    Button(NAMED(cmdNext), "&Nästa ›", [this] { GoOn(); });
    Button(NAMED(cmdClose), isLast ? "Stäng" : "Avbryt", [this] { reject(); });
    cmdPrev->setVisible(steps != Steps::NextAndClose);
    cmdNext->setVisible(!isLast);
    (isLast ? cmdClose : cmdNext)->setDefault(true);
    return HBox({Stretch(), cmdPrev, cmdNext, cmdClose});
}

void WizBugReportPage::GoOn()
{
    TakeAnswers();
    if (!MayGoOn())
        return;
    wizard_.WizNext = true;
    hide();
}

void WizBugReportPage::GoBack()
{
    TakeAnswers();
    wizard_.WizBack = true;
    hide();
}

void WizBugReportPage::showEvent(QShowEvent* event)
{
    // Not when a window that was put aside comes back.
    if (!event->spontaneous()) {
        wizard_.WizNext = false;
        wizard_.WizBack = false;
        OnShow();
    }
    Form::showEvent(event);
}

std::vector<std::unique_ptr<WizBugReportPage>> MakeBugReportPages(BugReportWizard& wizard,
                                                                  QWidget* parent)
{
    std::vector<std::unique_ptr<WizBugReportPage>> pages;
    pages.push_back(std::make_unique<WizBugReport_1>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_2>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_3>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_4>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_5>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_6>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_7>(wizard, parent));
    pages.push_back(std::make_unique<WizBugReport_8>(wizard, parent));
    return pages;
}

void OpenBugReportWizard(Session& session, QWidget* parent)
{
    BugReportWizard wizard{session};
    const auto pages = MakeBugReportPages(wizard, parent);
    for (std::size_t page = 0; page < pages.size();) {
        pages[page]->ShowModal();
        if (wizard.WizNext)
            ++page;
        else if (wizard.WizBack)
            --page;
        else
            return;
    }
}

} // namespace quillon
