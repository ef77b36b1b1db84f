// The pages of the wizard that work: the diagnosis, the report, where it is.
#pragma once

#include "tools/forms/WizBugReport.h"

class QPlainTextEdit;

namespace quillon {

class LinkLabel;

class WizBugReport_6 : public WizBugReportPage {
public:
    WizBugReport_6(BugReportWizard& wizard, QWidget* parent);

    QLabel* LabelInfo = nullptr;
    QPushButton* cmdRunDiagnos = nullptr;

protected:
    void OnShow() override;
    bool MayGoOn() override;

private:
    void RunDiagnosis();
};

class WizBugReport_7 : public WizBugReportPage {
public:
    WizBugReport_7(BugReportWizard& wizard, QWidget* parent);

    QPlainTextEdit* tReport = nullptr; // what will be written, to be looked at before
    QPushButton* cmdCreateReport = nullptr;

protected:
    void OnShow() override;

private:
    void CreateReport();
};

class WizBugReport_8 : public WizBugReportPage {
public:
    WizBugReport_8(BugReportWizard& wizard, QWidget* parent);

    LinkLabel* LabelBugReportFolder = nullptr;
    LinkLabel* LabelMailSupport = nullptr;
    QPushButton* cmdStartEmailApp = nullptr;

private:
    void OpenFolder();
};

} // namespace quillon
