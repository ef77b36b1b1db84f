#include "filelist/forms/RecursiveCollect.h"

#include "filelist/adding/add_tree_command.h"
#include "helpers/amount_text.h"
#include "platform/run_error.h"
#include "project/total_size.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <numeric>

namespace quillon {

namespace {

// Also within a folder, so that one with many files does not stop the count.
constexpr int kFilesBetweenLooks = 200;

} // namespace

RecursiveCollect::RecursiveCollect(const ListWork& work, const TreeToAdd& tree, QWidget* parent)
    : Form("RecursiveCollect", "Samlar ihop filer från underkataloger", parent), work_(work),
      tree_(tree), places_(work.project.Files.rows.size())
{
    std::iota(places_.begin(), places_.end(), std::size_t(0));
    const auto option = [&](QRadioButton*& member, const char* name, TreeForm form) {
        const Text caption = TreeFormCaption(form, tree.BaseDestination);
        return Named(member, name, new QRadioButton(ToQt(caption)));
    };
    Named(NAMED(sStartDirect), Note(tree.StartDirectory));
    option(NAMED(oReplaceLevel1InTree), TreeForm::ReplaceStart)->setChecked(true);
    option(NAMED(oConcatTree), TreeForm::WholePath);
    Named(NAMED(sSearchStatus), new QLabel);
    Named(NAMED(lblSummary), new QLabel);
    Named(NAMED(sNumberFiles), new QLabel("0"));
    Button(NAMED(cmdStart), "Addera &filer", [this] { Start(); });
    Button(NAMED(cmdClose), "&Stäng", [this] { reject(); });
    cmdStart->setDefault(true);
    Arrange(VBox({
        Note("Välj hur katalogträdet ska läggas in i fillistan och tryck sedan på Addera filer."),
        Frame("Startkatalog", {sStartDirect}),
        Frame("Destination", {oReplaceLevel1InTree, oConcatTree}),
        HBox({sSearchStatus, lblSummary, Stretch(), new QLabel("Antal filer:"), sNumberFiles}),
        Stretch(),
        HBox({Stretch(), cmdStart, cmdClose}),
    }));
    oReplaceLevel1InTree->setFocus();
}

void RecursiveCollect::Start()
{
    FileList& files = work_.project.Files;
    tree_.CheckDuplicates = !files.rows.empty();
    tree_.form = oConcatTree->isChecked() ? TreeForm::WholePath : TreeForm::ReplaceStart;
    seen_ = 0;
    sNumberFiles->setText("0");
    sSearchStatus->setText("Söker...");
    lblSummary->clear();
    cmdStart->setDefault(true);
    cmdStart->setEnabled(false); // or an event could begin a second walk
    const auto sizeBefore = SumOfSizes(files.rows, work_.host.machine.DecimalSign());
    QElapsedTimer time;
    time.start();
    FileAdding adding(files, work_.host, work_.ask);
    const bool isComplete = Collect(adding);
    const NewPlaces moved = adding.Finish();
    for (std::size_t& place : places_)
        place = moved[place];
    sNumberFiles->setText(QString::number(seen_));
    if (isComplete)
        lblSummary->setText(ToQt(Summary(time.elapsed(), sizeBefore)));
    cmdStart->setEnabled(true);
}

// The size is that of the new rows. A list whose sizes can't be summed shows none.
Text RecursiveCollect::Summary(std::int64_t milliseconds,
                               const std::optional<Long>& sizeBefore) const
{
    const char decimalSign = work_.host.machine.DecimalSign();
    const auto size = SumOfSizes(work_.project.Files.rows, decimalSign);
    const Text time = DurationText(milliseconds);
    if (!size || !sizeBefore)
        return "Klart på " + time;
    const Long added = std::max<Long>(0, *size - *sizeBefore);
    return SizeText(static_cast<std::uint64_t>(added), decimalSign) + " på " + time;
}

bool RecursiveCollect::Collect(FileAdding& adding)
{
    try {
        AddTree(adding, work_.host.files, tree_,
                {.enteredFolder = [this] { ProcessEvents(); }, .sawFile = [this] { CountFile(); }});
        sSearchStatus->setText("Klar!");
        cmdClose->setDefault(true);
        cmdClose->setFocus();
        return true;
    } catch (const RunError& failure) {
        sSearchStatus->setText("Fel inträffade!");
        work_.ask.Critical("Kan ej addera", WalkFailureText(failure, tree_));
        return false;
    }
}

void RecursiveCollect::CountFile()
{
    ++seen_;
    if (seen_ % kFilesBetweenLooks == 0)
        ProcessEvents();
}

void RecursiveCollect::ProcessEvents()
{
    sNumberFiles->setText(QString::number(seen_));
    // Closing does not stop the walk, but without this window in front the user could change the
    // list that is being filled.
    if (isVisible())
        work_.ask.ProcessEvents();
}

} // namespace quillon
