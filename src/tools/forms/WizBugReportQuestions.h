// The pages of the wizard that ask: the welcome, the questions, the free description.
#pragma once

#include "tools/forms/WizBugReport.h"

#include <array>

class QComboBox;
class QCheckBox;
class QPlainTextEdit;

namespace quillon {

class LinkLabel;

class WizBugReport_1 : public WizBugReportPage {
public:
    WizBugReport_1(BugReportWizard& wizard, QWidget* parent);

    LinkLabel* LabelDomainNameUpdates = nullptr;
};

/// A page whose questions are in the table.
class BugQuestionPage : public WizBugReportPage {
protected:
    BugQuestionPage(const char* name, int page, BugReportWizard& wizard, QWidget* parent);

    /// Each question over its choices or its field.
    Piece Questions();
    void TakeAnswers() override;

private:
    Piece Question(std::size_t number, int numberOnPage);

    int page_;
    std::vector<std::pair<std::size_t, QComboBox*>> choices_; // by number of the question
    std::vector<std::pair<std::size_t, QPlainTextEdit*>> texts_;
};

class WizBugReport_2 : public BugQuestionPage {
public:
    WizBugReport_2(BugReportWizard& wizard, QWidget* parent);

    std::array<QCheckBox*, kBugSystemCount> systems{};

protected:
    void TakeAnswers() override;
    bool MayGoOn() override;
};

class WizBugReport_3 : public BugQuestionPage {
public:
    WizBugReport_3(BugReportWizard& wizard, QWidget* parent);
};

class WizBugReport_4 : public BugQuestionPage {
public:
    WizBugReport_4(BugReportWizard& wizard, QWidget* parent);
};

class WizBugReport_5 : public WizBugReportPage {
public:
    WizBugReport_5(BugReportWizard& wizard, QWidget* parent);

    QPlainTextEdit* tBugDescription = nullptr;

protected:
    void TakeAnswers() override;
};

} // namespace quillon
