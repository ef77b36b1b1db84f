#include "importers/forms/ImportForm.h"

#include "helpers/windows_path.h"
#include "importers/forms/DlgNotAddedFiles.h"
#include "shell/moved_rows.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <utility>

namespace quillon {

namespace {

constexpr int kPathCharacters = 40;

constexpr const char* kClose = "S&täng";
constexpr const char* kStop = "S&toppa";

} // namespace

ImportForm::ImportForm(const char* name, const Text& title, const ImportContext& context,
                       Text& lastFolder, QWidget* parent)
    : Form(name, title, parent), context_(context), lastFolder_(lastFolder)
{
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { ShowFormHelp(); });
}

void ImportForm::ShowFormHelp()
{
    DlgFormHelp(*this, this).ShowModal();
}

Piece ImportForm::PathRow(PathLabel*& label, const char* name, QPushButton*& button,
                          const PathButton& choice)
{
    Named(label, name, new PathLabel);
    Explained(Button(button, choice.name, choice.caption, choice.select), choice.help);
    return HBox({Growing(MinWidth(kPathCharacters, label)), button});
}

QCheckBox* ImportForm::Choice01(QCheckBox*& member, const char* name, const Text& caption,
                                const Text& help)
{
    return Explained(Named(member, name, new QCheckBox(ToQt(caption))), help);
}

Piece ImportForm::Progress()
{
    Named(NAMED(sImportStatus), new QLabel);
    Named(NAMED(pbImport), new QProgressBar, "Import pågår");
    pbImport->setTextVisible(false);
    // An idle progress bar would look like a field to type in, so it is hidden; the window keeps
    // its size all the same.
    QSizePolicy policy = pbImport->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    pbImport->setSizePolicy(policy);
    pbImport->hide();
    return HBox({Growing(sImportStatus), Growing(pbImport)});
}

Piece ImportForm::Buttons()
{
    Button(NAMED(cmdImport), "&Importera", [this] { StartImport(); });
    Button(NAMED(cmdClose), kClose, [this] { reject(); });
    Button(NAMED(CmdHelp), "&Hjälp", [this] { ShowFormHelp(); });
    cmdImport->setDefault(true);
    return HBox({CmdHelp, Stretch(), cmdImport, cmdClose});
}

std::optional<Text> ImportForm::SelectProject(const Text& filter, const Text& fileName)
{
    auto file = context_.session.ask.OpenFile({.title = "Välj Visual Basic projekt",
                                               .folder = lastFolder_,
                                               .fileName = fileName,
                                               .filter = filter});
    if (file)
        lastFolder_ = ExtractDirectory(*file);
    return file;
}

std::optional<Text> ImportForm::SelectProgram(const Text& folder)
{
    return context_.session.ask.OpenFile({.title = "Välj programfil",
                                          .folder = folder.empty() ? lastFolder_ : folder,
                                          .fileName = "*.exe",
                                          .filter = "Programfiler (*.exe)|*.exe"});
}

const ImportData& ImportForm::Data()
{
    const Session& session = context_.session;
    if (!data_)
        data_ = ReadImportData(session.host.files, session.options.ToolFolder,
                               session.options.OwnFolder, session.ask);
    return *data_;
}

void ImportForm::StartImport()
{
    Session& session = context_.session;
    ImportResult result;
    RunStoppable([&] {
        result = Import({.list = {session.project, session.state, session.host, session.ask},
                         .user = *this,
                         .toolFolder = session.options.ToolFolder,
                         .ownFolder = session.options.OwnFolder});
    });
    // The dialog stays open, so that the user can correct what a check has refused.
    if (result.end == ImportEnd::Refused)
        return;
    result_ = std::move(result);
    accept();
}

void ImportForm::RunStoppable(const std::function<void()>& work)
{
    isStopWanted_ = false;
    ShowRunning(true);
    work();
    ShowRunning(false);
}

void ImportForm::ShowRunning(bool isRunning)
{
    isRunning_ = isRunning;
    if (isRunning)
        DisableControls();
    else
        for (QWidget* child : std::exchange(disabledByRun_, {}))
            child->setEnabled(true);
    cmdClose->setText(isRunning ? kStop : kClose);
    pbImport->setRange(0, 0);
    pbImport->setVisible(isRunning);
    if (!isRunning)
        sImportStatus->clear();
}

// All but the button that stops the run. A control that was disabled before is not enabled by the
// end of the run.
void ImportForm::DisableControls()
{
    for (QWidget* child : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child == pbImport || child == sImportStatus || child == cmdClose ||
            !child->isEnabledTo(this))
            continue;
        child->setEnabled(false);
        disabledByRun_.push_back(child);
    }
}

// Closing in the midst of an import ends the import; the dialog then closes by itself.
void ImportForm::reject()
{
    if (isRunning_)
        isStopWanted_ = true;
    else
        Form::reject();
}

std::optional<Text>
ImportForm::ChooseProgramDestination(const ImportUser::ProgramQuestion& question)
{
    return context_.forms.chooseProgramDestination(question, parentWidget());
}

bool ImportForm::EditIcon(FileListRow& row, const Text& title)
{
    return context_.forms.editIcon(row, title, parentWidget());
}

void ImportForm::UpdateStatusBar()
{
    context_.window.UpdateStatusBar();
}

bool ImportForm::MayGoOn(const Text& file)
{
    return ShowStep("Adderar " + file);
}

bool ImportForm::ShowStep(const Text& step)
{
    sImportStatus->setText(ToQt(step));
    // Without the dialog in front of it, the user could change the list that is being filled.
    if (isVisible())
        context_.session.ask.ProcessEvents();
    return !isStopWanted_;
}

void RunImportForm(ImportForm& form, MainWindow& window)
{
    form.ShowModal();
    if (!form.Result())
        return;
    if (const auto program = form.Result()->newProgram)
        window.ShowFileList({*program});
    else
        ShowMovedRows(window, form.Result()->places);
    ShowNotAddedFiles(*form.Result(), form.parentWidget());
}

} // namespace quillon
