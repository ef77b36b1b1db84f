#include "builder/forms/DlgTest.h"

#include "builder/test_run.h"
#include "shell/session.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kLineCharacters = 48;

TestRun RunOf(Session& session)
{
    return {session.project, session.host, session.ask, session.options, session.surface};
}

} // namespace

DlgTest::DlgTest(Session& session, QWidget* parent)
    : Form("DlgTest", "Testa", parent), session_(session)
{
    Button(NAMED(cmdStartTest), "&Starta test", [this] {
        StartSimulation();
        accept();
    });
    Button(NAMED(cmdCancel), "Avbryt", [this] { reject(); });
    cmdStartTest->setDefault(true);
    Arrange(VBox({
        MinWidth(kLineCharacters, Note("Här kan du prova installationsprogrammets dialogrutor och "
                                       "installationsskärm innan du skapar installationen.")),
        Note("Ingenting komprimeras och ingenting installeras på datorn. Filerna i fillistan måste "
             "finnas på hårddisken, men de kopieras inte. Projektet ändras inte av testet."),
        Stretch(),
        HBox({Stretch(), cmdStartTest, cmdCancel}),
    }));
}

void DlgTest::StartSimulation()
{
    TestRun run = RunOf(session_);
    quillon::StartSimulation(run);
}

void ShowTest(Session& session, QWidget* parent)
{
    DlgTest(session, parent).ShowModal();
}

void ShowDesignPreview(Session& session)
{
    TestRun run = RunOf(session);
    StartDesignPreview(run);
}

} // namespace quillon
