#include "filelist/forms/DlgVariables.h"

#include "filelist/forms/DlgChVariables.h"
#include "filelist/variables.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kValueCharacters = 70;
constexpr int kRowsInView = 20;

} // namespace

DlgVariables::DlgVariables(Session& session, Use use, QWidget* parent)
    : Form("DlgVariables", "Variabler", parent), session_(session)
{
    MakeList();
    Button(NAMED(cmdChangeVariables), "&Ändra värden...", [this] { ChangeVariables(); });
    const bool isPicker = use == Use::Picker;
    Arrange(VBox({
        Growing(ListViewVariables),
        HBox({cmdChangeVariables, isPicker ? OkCancel() : OkOnly()}),
    }));
    Fill();
    ListViewVariables->setFocus();
    if (!isPicker)
        return;
    // What is shown as chosen is what OK takes.
    ListViewVariables->setCurrentItem(ListViewVariables->topLevelItem(0));
    connect(ListViewVariables, &QTreeWidget::itemDoubleClicked, this, [this] { cmdOK->click(); });
}

void DlgVariables::MakeList()
{
    Named(NAMED(ListViewVariables), new QTreeWidget, "Variabler");
    ListViewVariables->setHeaderLabels({"Variabel", "Värde"});
    ListViewVariables->setRootIsDecorated(false);
    ListViewVariables->setUniformRowHeights(true);
    ListViewVariables->setAllColumnsShowFocus(true);
    const QFontMetrics letters(font());
    ListViewVariables->setMinimumSize(letters.averageCharWidth() * kValueCharacters,
                                      letters.lineSpacing() * kRowsInView);
}

void DlgVariables::Fill()
{
    for (const auto& [variable, value] : ListVariableValues(session_.project, session_.host)) {
        auto* row = new QTreeWidgetItem({ToQt(variable), ToQt(value)});
        row->setToolTip(1, ToQt(value));
        ListViewVariables->addTopLevelItem(row);
    }
    ListViewVariables->resizeColumnToContents(0);
}

// Kept: what is changed shows the next time that the list is opened.
void DlgVariables::ChangeVariables()
{
    DlgChVariables(session_, this).ShowModal();
}

void DlgVariables::Store()
{
    for (const QTreeWidgetItem* row : ListViewVariables->selectedItems())
        Variable = FromQt(row->text(0));
}

void ShowVariables(Session& session, QWidget* parent)
{
    DlgVariables(session, DlgVariables::Use::Preview, parent).ShowModal();
}

std::optional<Text> ChooseVariable(Session& session, QWidget* parent)
{
    DlgVariables form(session, DlgVariables::Use::Picker, parent);
    if (!form.ShowModal() || form.Variable.empty())
        return std::nullopt;
    return form.Variable;
}

} // namespace quillon
