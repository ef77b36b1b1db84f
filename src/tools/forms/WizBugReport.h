// The wizard that leads to a report for the support: eight pages, shown one after the other, whose
// answers live in their controls until the report is written.
#pragma once

#include "tools/bug_report.h"
#include "ui/kit/Form.h"

#include <memory>

class QLabel;

namespace quillon {

struct Session;

/// What the pages share.
struct BugReportWizard {
    Session& session;
    // Set by a page's `cmdNext` and `cmdPrev`, cleared when a page is shown.
    bool WizNext = false;
    bool WizBack = false;
    BugReportAnswers answers;
};

class WizBugReportPage : public Form {
public:
    QPushButton* cmdNext = nullptr;
    QPushButton* cmdPrev = nullptr;
    QPushButton* cmdClose = nullptr;

protected:
    WizBugReportPage(const char* name, const Text& title, BugReportWizard& wizard, QWidget* parent);

    // All pages are equally wide, so that the buttons stay where they are.
    static constexpr int kPageLetters = 72;

    enum class Steps { NextAndClose, All, PreviousAndClose };
    /// The row of buttons that every page ends in.
    Piece StepButtons(Steps steps);

    /// Whether the page may be left forwards; where not, it has shown why.
    virtual bool MayGoOn() { return true; }
    /// Puts what the page asks for into the wizard's answers, before any check of them.
    virtual void TakeAnswers() {}
    /// After the clearing of the two flags.
    virtual void OnShow() {}

    void GoOn();
    void showEvent(QShowEvent* event) override;

    BugReportWizard& wizard_;

private:
    void GoBack();
};

/// All eight pages, first to last. They are made once, so that going back keeps what was answered.
std::vector<std::unique_ptr<WizBugReportPage>> MakeBugReportPages(BugReportWizard& wizard,
                                                                  QWidget* parent);

void OpenBugReportWizard(Session& session, QWidget* parent);

} // namespace quillon
