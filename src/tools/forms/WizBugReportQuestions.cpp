#include "tools/forms/WizBugReportQuestions.h"

#include "helpers/product.h"
#include "platform/failure_text.h"
#include "shell/session.h"
#include "tools/fault_note.h"
#include "ui/controls/LinkLabel.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kLinesOfAnErrorMessage = 3;

Text StepTitle(int page)
{
    return "Felrapportguide (steg " + NumberText(page) + ")";
}

} // namespace

WizBugReport_1::WizBugReport_1(BugReportWizard& wizard, QWidget* parent)
    : WizBugReportPage("WizBugReport_1", "Quillon 2004 - Felrapportguide", wizard, parent)
{
    Named(NAMED(LabelDomainNameUpdates),
          new LinkLabel(wizard.session, kUpdatesAddress, kUpdatesAddress));
    Arrange(VBox({
        MinWidth(
            kPageLetters,
            Note("Välkommen till felrapportguiden. Om det uppstår ett fel i programmet eller i en "
                 "installation hjälper guiden dig att skriva en felrapport, som du sedan skickar "
                 "till "
                 "oss med e-post.")),
        Note("Försäkra dig först om att du har den senaste versionen av programmet:"),
        LabelDomainNameUpdates,
        Note("Se också till att rätt projekt är öppet: en kopia av det bifogas rapporten."),
        Stretch(),
        StepButtons(Steps::NextAndClose),
    }));
    cmdNext->setFocus();
}

BugQuestionPage::BugQuestionPage(const char* name, int page, BugReportWizard& wizard,
                                 QWidget* parent)
    : WizBugReportPage(name, StepTitle(page), wizard, parent), page_(page)
{
}

Piece BugQuestionPage::Questions()
{
    auto* questions = new QVBoxLayout;
    int numberOnPage = 0;
    for (std::size_t i = 0; i < kBugQuestionCount; ++i)
        if (kBugQuestions[i].page == page_)
            questions->addLayout(Question(i, ++numberOnPage).layout);
    return questions;
}

Piece BugQuestionPage::Question(std::size_t number, int numberOnPage)
{
    const BugQuestion& question = kBugQuestions[number];
    const QString caption = QString::fromUtf8(question.caption);
    auto* label = new QLabel(caption);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    QWidget* answer = nullptr;
    if (question.choices.empty()) {
        auto* text = new QPlainTextEdit;
        text->setTabChangesFocus(true);
        text->setFixedHeight(kLinesOfAnErrorMessage * text->fontMetrics().lineSpacing() +
                             2 * text->fontMetrics().height() / 3);
        LimitTyping(text, 0);
        texts_.emplace_back(number, text);
        label->setObjectName("Label_ErrorMsg");
        answer = text;
    } else {
        auto* choice = new QComboBox;
        choice->addItem(kNoAnswer);
        for (const char* row : question.choices)
            choice->addItem(QString::fromUtf8(row));
        choices_.emplace_back(number, choice);
        label->setObjectName(QString("Q%1").arg(numberOnPage));
        answer = choice;
    }
    answer->setObjectName(question.control);
    answer->setAccessibleName(caption);
    label->setBuddy(answer);
    return VBox({label, MinWidth(kPageLetters, answer)});
}

void BugQuestionPage::TakeAnswers()
{
    for (const auto& [number, choice] : choices_)
        wizard_.answers.answers[number] = FromQt(choice->currentText());
    for (const auto& [number, text] : texts_)
        wizard_.answers.answers[number] = LinesFromQt(TypedText(text));
}

WizBugReport_2::WizBugReport_2(BugReportWizard& wizard, QWidget* parent)
    : BugQuestionPage("WizBugReport_2", 2, wizard, parent)
{
    auto* boxes = new QGridLayout;
    constexpr int kColumns = 3;
    for (std::size_t i = 0; i < kBugSystemCount; ++i) {
        const BugSystem& system = kBugSystems[i];
        Named(systems[i], system.control, new QCheckBox(QString::fromUtf8(system.caption)));
        boxes->addWidget(systems[i], static_cast<int>(i) / kColumns,
                         static_cast<int>(i) % kColumns);
    }
    Arrange(VBox({
        Questions(),
        Frame("Vid vilka operativsystem inträffar felet?", {boxes}),
        Stretch(),
        StepButtons(Steps::All),
    }));
}

void WizBugReport_2::TakeAnswers()
{
    BugQuestionPage::TakeAnswers();
    for (std::size_t i = 0; i < kBugSystemCount; ++i)
        wizard_.answers.systems[i] = systems[i]->isChecked();
}

bool WizBugReport_2::MayGoOn()
{
    return HasSystems(wizard_.answers, wizard_.session.ask);
}

WizBugReport_3::WizBugReport_3(BugReportWizard& wizard, QWidget* parent)
    : BugQuestionPage("WizBugReport_3", 3, wizard, parent)
{
    Arrange(VBox({Questions(), Stretch(), StepButtons(Steps::All)}));
}

WizBugReport_4::WizBugReport_4(BugReportWizard& wizard, QWidget* parent)
    : BugQuestionPage("WizBugReport_4", 4, wizard, parent)
{
    Arrange(VBox({Questions(), Stretch(), StepButtons(Steps::All)}));
}

WizBugReport_5::WizBugReport_5(BugReportWizard& wizard, QWidget* parent)
    : WizBugReportPage("WizBugReport_5", StepTitle(5), wizard, parent)
{
    Named(NAMED(tBugDescription), new QPlainTextEdit);
    tBugDescription->setTabChangesFocus(true);
    tBugDescription->setPlainText(
        LinesToQt(ReadFaultNote(wizard.session.host.files, wizard.session.options.OwnFolder)));
    LimitTyping(tBugDescription, 0);
    Arrange(VBox({
        Growing(Above("Här kan du skriva in en beskrivning av felet:",
                      MinWidth(kPageLetters, tBugDescription))),
        StepButtons(Steps::All),
    }));
    tBugDescription->setFocus();
}

void WizBugReport_5::TakeAnswers()
{
    wizard_.answers.description = LinesFromQt(TypedText(tBugDescription));
}

} // namespace quillon
