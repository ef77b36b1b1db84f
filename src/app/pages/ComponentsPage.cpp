#include "app/pages/ComponentsPage.h"

#include "app/pages/in_place.h"
#include "filelist/forms/DlgCompMoreData.h"
#include "helpers/number_text.h"
#include "project/text_limits.h"

#include <QtWidgets>

namespace quillon {

ComponentsPage::ComponentsPage(Session& session, std::function<void()> showComponentColumns)
    : session_(session), showComponentColumns_(std::move(showComponentColumns))
{
    setObjectName("ComponentsPage");
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 3);
    grid->addWidget(new QLabel("Komponentens namn"), 0, 1);
    grid->addWidget(new QLabel("Komponentens destinationskatalog"), 0, 3);
    for (std::size_t component = 0; component < kComponentCount; ++component)
        MakeRow(component, *grid);
    Arrange(this, VBox({Frame("Komponenter", {grid}), Stretch()}));
    ShowBackgrounds();
}

void ComponentsPage::MakeRow(std::size_t component, QGridLayout& grid)
{
    const Text number = NumberText(static_cast<std::int64_t>(component) + 1);
    const auto name = [&](const char* array) { return array + number; };
    section::FileComponent& stored = session_.project.FileComponents[component];
    Row& row = rows_[component];

    Named(row.cComp, name("cComp").c_str(),
          new QCheckBox(QString::fromStdString("Komponent nr &" + number)));
    connect(row.cComp, &QCheckBox::clicked, this,
            [this, component](bool ticked) { Tick(component, ticked); });
    EditInPlace(row.tCompName, name("tCompName").c_str(), session_, stored.CompName,
                MaxTextLength(&section::FileComponent::CompName));
    row.tCompName->setAccessibleName(QString::fromStdString("Namn på komponent nr " + number));
    Named(row.sCompDir, name("sCompDir").c_str(), new QLabel("Katalog:"));
    EditInPlace(row.tCompDir, name("tCompDir").c_str(), session_, stored.CompDir,
                MaxTextLength(&section::FileComponent::CompDir));
    row.tCompDir->setAccessibleName(QString::fromStdString("Katalog för komponent nr " + number));
    Button(row.cmdCompData, name("cmdCompData").c_str(), "Mer...",
           [this, component] { ShowCompMoreData(session_, component, this); });
    row.cmdCompData->setAccessibleName(
        QString::fromStdString("Mer inställningar för komponent nr " + number));

    QWidget* const controls[] = {row.cComp, row.tCompName, row.sCompDir, row.tCompDir,
                                 row.cmdCompData};
    for (int column = 0; QWidget * control : controls)
        grid.addWidget(control, static_cast<int>(component) + 1, column++);
}

void ComponentsPage::ShowSession()
{
    for (std::size_t component = 0; component < kComponentCount; ++component) {
        const section::FileComponent& stored = session_.project.FileComponents[component];
        rows_[component].cComp->setChecked(stored.Comp != 0);
        ShowInPlace(rows_[component].tCompName, stored.CompName);
        ShowInPlace(rows_[component].tCompDir, stored.CompDir);
        ShowEnabled(component);
    }
}

// Kept: rows of the file list keep the number of a component that is no longer in use.
void ComponentsPage::Tick(std::size_t component, bool ticked)
{
    session_.project.FileComponents[component].Comp = ticked ? 1 : 0;
    session_.state.ProjectIsDirty = kOn;
    ShowEnabled(component);
    showComponentColumns_();
}

void ComponentsPage::ShowEnabled(std::size_t component)
{
    const Row& row = rows_[component];
    const bool inUse = session_.project.FileComponents[component].Comp != 0;
    QWidget* const controls[] = {row.tCompName, row.sCompDir, row.tCompDir, row.cmdCompData};
    for (QWidget* control : controls)
        control->setEnabled(inUse);
}

// Not every style paints a disabled field on the window's own colour.
void ComponentsPage::ShowBackgrounds()
{
    QPalette background;
    background.setBrush(QPalette::Disabled, QPalette::Base,
                        palette().brush(QPalette::Disabled, QPalette::Window));
    for (const Row& row : rows_)
        for (QLineEdit* field : {row.tCompName, row.tCompDir})
            field->setPalette(background);
}

void ComponentsPage::changeEvent(QEvent* event)
{
    Page::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && rows_.back().tCompDir)
        ShowBackgrounds();
}

} // namespace quillon
