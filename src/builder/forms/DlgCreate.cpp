#include "builder/forms/DlgCreate.h"

#include "builder/folder_disks.h"
#include "builder/forms/CreateAsk.h"
#include "builder/forms/DlgCompressOptions.h"
#include "builder/forms/MediumPicture.h"
#include "builder/package_summary.h"
#include "builder/signing/sign_programs.h"
#include "project/install_keys.h"
#include "project/text_limits.h"
#include "shell/failure_text.h"
#include "shell/main_window.h"
#include "shell/session.h"
#include "ui/dialogs/XInputBox.h"
#include "ui/kit/typed_text.h"
#include "ui/look/icons.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

struct MediumControls {
    Medium medium;
    QRadioButton* DlgCreate::*button;
    MediumPicture* DlgCreate::*picture;
    const char* pictureName;
    const char* icon;
    const char* toolTip;
};

// clang-format off
const std::array<MediumControls, 4> kControls{{
    {Medium::Floppy,       &DlgCreate::oFloppy,        &DlgCreate::PictureFloppy,   "PictureFloppy",   "medium-floppy",   "Skapa installation på disketter"},
    {Medium::CompressedCd, &DlgCreate::oCD_Compress,   &DlgCreate::PictureCD,       "PictureCD",       "medium-cd",       "Skapa installation för CD/DVD"},
    {Medium::CdTree,       &DlgCreate::oCD_NoCompress, &DlgCreate::PictureCD2,      "PictureCD2",      "medium-cd-tree",  "Skapa installation för CD/DVD (färdigt träd)"},
    {Medium::Internet,     &DlgCreate::oInternet,      &DlgCreate::PictureInternet, "PictureInternet", "medium-internet", "Skapa en självuppackande installationsfil (en enda EXE-fil) för Internet"},
}};
// clang-format on

constexpr int kProgressSteps = 1000;
constexpr int kLinesInView = 9;

int MaxDestinationLength()
{
    return MaxTextLength(&section::LastDirectories::CreatationDestDir);
}

} // namespace

DlgCreate::DlgCreate(Session& session, QWidget* parent,
                     std::function<void(QWidget* parent)> showOptions, HostPaths paths)
    : Form("DlgCreate", "Skapa installation", parent), session_(session),
      showOptions_(std::move(showOptions)), paths_(std::move(paths)),
      form_(OpenCreateForm(session.project, session.state))
{
    Arrange(VBox({MakeMedia(), MakeSettings(), Growing(MakeStatus()), MakeButtons()}));
    cmdCreate->setDefault(true);
    WatchMouse();
    ShowState();
    buttons_[static_cast<std::size_t>(&ChoiceOf(form_.TargetMedia) - kMedia.data())]->setFocus();
}

Piece DlgCreate::MakeMedia()
{
    FrameType = Frame("Typ av installation",
                      {HBox({MakeMedium(Medium::Floppy), MakeMedium(Medium::CompressedCd),
                             MakeMedium(Medium::CdTree), MakeMedium(Medium::Internet)})});
    FrameType->setObjectName("FrameType");
    return FrameType;
}

Piece DlgCreate::MakeMedium(Medium medium)
{
    const MediumChoice& choice = ChoiceOf(medium);
    const auto place = static_cast<std::size_t>(&choice - kMedia.data());
    const MediumControls& controls = kControls[place];
    auto* button = Named(this->*controls.button, choice.radioButton,
                         new QRadioButton(QString::fromUtf8(choice.caption)));
    auto* picture = Named(this->*controls.picture, controls.pictureName,
                          new MediumPicture(NamedIcon(controls.icon), button), controls.toolTip);
    picture->setToolTip(QString::fromUtf8(controls.toolTip));
    picture->onMouseOver = [this, picture] { Highlight(picture); };
    connect(button, &QRadioButton::clicked, this, [this, medium] { ChooseMedium(medium); });
    buttons_[place] = button;
    pictures_[place] = picture;
    return Growing(
        VBox({HBox({Stretch(), picture, Stretch()}), HBox({Stretch(), button, Stretch()})}));
}

Piece DlgCreate::MakeSettings()
{
    Named(NAMED(tDestinationDir), new QLineEdit);
    LimitTyping(tDestinationDir, MaxDestinationLength());
    connect(tDestinationDir, &QLineEdit::textChanged, this,
            [this](const QString& text) { ChangeDestination(text); });
    OnLeave(tDestinationDir, [this] { TakeHostPath(); });
    Named(NAMED(cbOS), new QComboBox);
    for (const char* system : kTargetOperatingSystems)
        cbOS->addItem(QString::fromUtf8(system));
    cbOS->setCurrentIndex(form_.cbOS);
    connect(cbOS, &QComboBox::activated, this, [this](int row) {
        form_.cbOS = static_cast<Integer>(row);
        session_.state.ProjectIsDirty = kOn;
    });
    return Fields(
        {{"Destinations&katalog:",
          HBox({Growing(tDestinationDir),
                Button(NAMED(CmdSelectDirectory), "&Bläddra...", [this] { SelectDirectory(); })})},
         {"&Målsystem:", HBox({Growing(cbOS), Button(NAMED(cmdCompressOptions), "Kom&primering...",
                                                     [this] { ShowCompressOptions(); })})}});
}

Piece DlgCreate::MakeStatus()
{
    Named(NAMED(lbStatus), new QListWidget);
    lbStatus->setUniformItemSizes(true);
    lbStatus->setMinimumHeight(kLinesInView * lbStatus->fontMetrics().lineSpacing());
    Named(NAMED(pbProgress), new QProgressBar, "Förlopp");
    pbProgress->setTextVisible(false);
    pbProgress->setRange(0, kProgressSteps);
    Named(NAMED(lblProgress), new QLabel, "Packade megabyte");
    lblProgress->setMinimumWidth(
        lblProgress->fontMetrics().horizontalAdvance("8888,8 av 8888,8 MB"));
    Button(NAMED(cmdOpenFolder), "", [this] { OpenFolder(); });
    cmdOpenFolder->setAccessibleName("Öppna katalogen med den färdiga installationen");
    cmdOpenFolder->setFlat(true);
    cmdOpenFolder->setCursor(Qt::PointingHandCursor);
    QFont underlined = font();
    underlined.setUnderline(true);
    cmdOpenFolder->setFont(underlined);
    return VBox({Growing(Above("Stat&us:", lbStatus)), HBox({Growing(pbProgress), lblProgress}),
                 HBox({cmdOpenFolder, Stretch(), Named(NAMED(lblSummary), new QLabel)})});
}

Piece DlgCreate::MakeButtons()
{
    return HBox({Button(NAMED(CmdOptions), "I&nställningar...",
                        [this] {
                            if (showOptions_)
                                showOptions_(this);
                        }),
                 Stretch(), Button(NAMED(cmdCreate), "&Skapa", [this] { StartCreate(); }),
                 Button(NAMED(cmdClose), "S&täng", [this] { reject(); })});
}

void DlgCreate::WatchMouse()
{
    for (QWidget* widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(FrameType)}) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }
    if (parentWidget())
        parentWidget()->window()->installEventFilter(this);
}

void DlgCreate::changeEvent(QEvent* event)
{
    Form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && cmdOpenFolder)
        ShowLink();
}

bool DlgCreate::eventFilter(QObject* watched, QEvent* event)
{
    const bool isMouseOver = event->type() == QEvent::MouseMove || event->type() == QEvent::Leave;
    if (isMouseOver && (watched == this || watched == FrameType))
        Highlight(nullptr);
    // The main window must not be closed during a run.
    if (event->type() == QEvent::Close && watched != this && isRunning_) {
        event->ignore();
        return true;
    }
    return Form::eventFilter(watched, event);
}

// Brings the controls in line with the form's state; their own reactions are off meanwhile.
void DlgCreate::ShowState()
{
    isShowingState_ = true;
    for (std::size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i]->setChecked(kMedia[i].medium == form_.TargetMedia);
    if (FromQt(tDestinationDir->text()) != form_.tDestinationDir)
        tDestinationDir->setText(ToQt(form_.tDestinationDir));
    isShowingState_ = false;

    for (QWidget* widget :
         {static_cast<QWidget*>(FrameType), static_cast<QWidget*>(tDestinationDir),
          static_cast<QWidget*>(cbOS), static_cast<QWidget*>(cmdCompressOptions),
          static_cast<QWidget*>(cmdClose)})
        widget->setEnabled(!isRunning_);
    CmdSelectDirectory->setEnabled(!isRunning_ && form_.isCmdSelectDirectoryEnabled);
    cmdCreate->setEnabled(!isRunning_ && form_.isCmdCreateEnabled);
    CmdOptions->setEnabled(!isRunning_ && form_.isCmdOptionsEnabled);
    cmdOpenFolder->setEnabled(!isRunning_ && !finishedFolder_.empty());
}

void DlgCreate::Highlight(const MediumPicture* shown)
{
    for (MediumPicture* picture : pictures_)
        picture->SetHighlighted(picture == shown);
}

void DlgCreate::ChooseMedium(Medium medium)
{
    ClickMedium(form_, medium, session_.project, session_.state);
    ShowState();
    cmdCreate->setDefault(true);
}

void DlgCreate::ChangeDestination(const QString& folder)
{
    if (!isShowingState_)
        ChangeDestinationDir(form_, FromQt(folder), session_.project, session_.state);
}

void DlgCreate::SelectDirectory()
{
    const std::optional<Text> folder = session_.ask.SelectDir(
        "Välj en katalog (mapp) i listan nedanför och tryck därefter på 'OK'. Alla "
        "installationsfiler kommer att kopieras till den valda katalogen.",
        form_.tDestinationDir);
    if (!folder)
        return;
    if (HasRoomFor(*folder))
        tDestinationDir->setText(ToQt(*folder));
    else
        TellNoRoomFor(*folder);
}

void DlgCreate::TakeHostPath()
{
    const Text folder = WindowsPathOf(form_.tDestinationDir, paths_);
    if (folder != form_.tDestinationDir && HasRoomFor(folder))
        tDestinationDir->setText(ToQt(folder));
}

// The field would cut a longer one, and Create write somewhere else.
bool DlgCreate::HasRoomFor(const Text& folder) const
{
    return ToQt(folder).size() <= tDestinationDir->maxLength();
}

void DlgCreate::TellNoRoomFor(const Text& folder)
{
    session_.ask.Inform("Ogiltig katalog", "Katalogen '" + folder + "' är längre än " +
                                               NumberText(tDestinationDir->maxLength()) +
                                               " tecken! Välj en annan katalog.");
}

void DlgCreate::ShowCompressOptions()
{
    DlgCompressOptions(session_, form_, this).ShowModal();
}

void DlgCreate::done(int result)
{
    if (isRunning_)
        return;
    TakeHostPath();
    CloseCreateForm(form_, session_.project);
    Form::done(result);
}

void DlgCreate::StartCreate()
{
    if (isRunning_)
        return;
    TakeHostPath();
    if (const Text folder = WindowsPathOf(form_.tDestinationDir, paths_); !HasRoomFor(folder)) {
        TellNoRoomFor(folder);
        return;
    }
    if (const Text reason = CreateObstacle(form_); !reason.empty()) {
        session_.ask.Inform("Kan ej skapa", reason);
        return;
    }
    SetRunning(true);
    CreateAsk ask(session_.ask,
                  {.addLines = [this](const std::vector<Text>& lines) { AddLines(lines); },
                   .clearLines = [this] { lbStatus->clear(); },
                   .showProgress = [this](std::uint64_t done,
                                          std::uint64_t total) { ShowProgress(done, total); }});
    const CreateResult result = RunOnce(ask);
    ask.Flush();
    SetRunning(false);
    OfferNextStep(result);
}

/// What the user most likely does next takes Enter: closes the form after a success.
void DlgCreate::OfferNextStep(CreateResult result)
{
    const bool isDone = result == CreateResult::Done || !cmdCreate->isEnabled();
    QPushButton* next = isDone ? cmdClose : cmdCreate;
    next->setDefault(true);
    next->setFocus();
}

CreateResult DlgCreate::RunOnce(Ask& ask)
{
    QElapsedTimer time;
    time.start();
    AskedDisks disks(session_.host, ask, form_.tDestinationDir);
    CompressionInterface compression(session_.host, ask, disks);
    Signing signing(session_.programs, {}, [this](const Text& title, const Text& prompt) {
        return AskPassword(title, prompt, this);
    });
    CreateRun run{.project = session_.project,
                  .state = session_.state,
                  .form = form_,
                  .options = session_.options,
                  .host = session_.host,
                  .ask = ask,
                  .compression = compression,
                  .surface = session_.surface,
                  .signing = &signing};
    const CreateResult result = RunCreate(run);
    if (result == CreateResult::Done && form_.TargetMedia == Medium::Floppy)
        disks.RemoveDisksBehind(run.FloppiesUsed);
    hasRun_ = true;
    isListSorted_ = isListSorted_ || run.isListSorted;
    TellResult(run, result, ask);
    if (result == CreateResult::Done)
        lblSummary->setText(ToQt(PackageSummary(run, time.elapsed())));
    return result;
}

// Status lines and boxes of a failure often name no file, so the last line does.
void DlgCreate::TellResult(const CreateRun& run, CreateResult result, Ask& ask)
{
    if (result == CreateResult::Failed)
        ask.AddStatusLine(FailureText(run));
    if (result != CreateResult::Done)
        return;
    finishedFolder_ = run.form.tDestinationDir;
    ShowLink();
}

void DlgCreate::ShowLink()
{
    // A long path must not widen the form.
    const QString folder = ToQt(finishedFolder_);
    const QString shown =
        cmdOpenFolder->fontMetrics().elidedText(folder, Qt::ElideMiddle, tDestinationDir->width());
    cmdOpenFolder->setText(folder.isEmpty() ? "" : "&Öppna " + QString(shown).replace('&', "&&"));
    cmdOpenFolder->setToolTip(folder);
    QPalette colours;
    colours.setColor(QPalette::ButtonText, palette().color(QPalette::Link));
    cmdOpenFolder->setPalette(colours);
}

void DlgCreate::SetRunning(bool running)
{
    isRunning_ = running;
    if (running) {
        finishedFolder_.clear();
        lblSummary->clear();
        ShowLink();
        // The list is all that is left to use while Create runs.
        lbStatus->setFocus();
    } else {
        ShowProgress(0, 0);
    }
    ShowState();
}

void DlgCreate::AddLines(const std::vector<Text>& lines)
{
    QStringList texts;
    for (const Text& line : lines)
        texts << ToQt(line);
    lbStatus->addItems(texts);
    lbStatus->setCurrentRow(lbStatus->count() - 1);
}

void DlgCreate::ShowProgress(std::uint64_t done, std::uint64_t total)
{
    const bool isShown = total > 0;
    pbProgress->setValue(isShown ? static_cast<int>(done * kProgressSteps / total) : 0);
    lblProgress->setText(
        isShown ? ToQt(ProgressText(done, total, session_.host.machine.DecimalSign())) : "");
}

void DlgCreate::OpenFolder()
{
    try {
        session_.host.machine.OpenDocument(finishedFolder_);
    } catch (const RunError& error) {
        session_.ask.Critical("Kan ej öppna katalogen", FailureText(error, finishedFolder_));
    }
}

void ShowCreate(Session& session, MainWindow& window, QWidget* parent,
                std::function<void(QWidget* parent)> showOptions, HostPaths paths)
{
    DlgCreate form(session, parent, std::move(showOptions), std::move(paths));
    form.ShowModal();
    if (form.HasRun())
        window.ShowFileList(form.IsListSorted() ? std::vector<std::size_t>()
                                                : window.SelectedRows());
}

} // namespace quillon
