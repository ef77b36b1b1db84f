#include "actions/forms/previews/InstDlg.h"

#include "actions/forms/previews/SidePicture.h"
#include "actions/preview_page.h"
#include "formats/page_layout.h"
#include "shell/session.h"
#include "ui/controls/RunningText.h"
#include "ui/controls/picture.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using namespace PageLayout;

constexpr int kUnitsPerLetter = 4;
constexpr int kUnitsPerLine = 8;

QFrame* Line()
{
    auto* line = new QFrame;
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    return line;
}

QWidget* Box(Piece pieces)
{
    auto* box = new QWidget;
    Arrange(box, pieces);
    return box;
}

} // namespace

InstDlg::InstDlg(const char* name, DialogSwitch page, const Text& title, const Text& bitmap,
                 Session& session, QWidget* parent)
    : Form(name, title, parent), session_(session), page_(page)
{
    const Text shown = Shown(title);
    setWindowTitle(
        ToQt(shown.empty() ? "Installation av " + session.project.ProjectName.ProjectName : shown));
    MakePicture(bitmap);
    MakeTitle(shown);
}

Text InstDlg::Shown(const Text& text) const
{
    return PreviewText(session_.project, session_.host, text);
}

int InstDlg::UnitsAcross(double units) const
{
    // The usual letter is the mean of the alphabet's, capitals and small ones.
    const QString alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    const double letter =
        QFontMetricsF(font()).horizontalAdvance(alphabet) / static_cast<double>(alphabet.size());
    return qRound(units * letter / kUnitsPerLetter);
}

int InstDlg::UnitsDown(double units) const
{
    return qRound(units * QFontMetricsF(font()).height() / kUnitsPerLine);
}

int InstDlg::ContentWidth() const
{
    return UnitsAcross(kPageWidth) - PictureDlg->width() - 2 * UnitsAcross(kMargin);
}

void InstDlg::MakePicture(const Text& bitmap)
{
    const int height = UnitsDown(kPageHeight);
    const int width = height * kPictureWidthInPixels / kPictureHeightInPixels;
    Named(NAMED(PictureDlg), new SidePicture({width, height}));
    const FileSystem& files = session_.host.files;
    const Text path = PreviewBitmap(session_.project, files, session_.options.ToolFolder, bitmap);
    if (const auto picture = LoadPicture(files, path))
        PictureDlg->ShowPicture(*picture);
    else
        PictureDlg->ShowNote(WhyNoPicture(files, path));
}

void InstDlg::MakeTitle(const Text& title)
{
    Named(NAMED(sTitle), new RunningText(title, "Rubrik"));
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kTitleLetters);
    large.setBold(true);
    sTitle->setFont(large);
    sTitle->FitHeight(ContentWidth(), UnitsDown(kMaxTitleHeight));
    sTitle->setVisible(!title.empty());
}

RunningText* InstDlg::Paragraph(RunningText*& member, const char* name, const Text& text,
                                const Text& accessibleName, int maxHeight)
{
    auto* paragraph = Named(member, name, new RunningText(Shown(text), accessibleName));
    paragraph->setFont(font());
    paragraph->FitHeight(ContentWidth(), UnitsDown(maxHeight));
    return paragraph;
}

void InstDlg::ArrangePage(Piece pieces, Buttons buttons)
{
    QWidget* content = Box(VBox({sTitle, Growing(pieces)}));
    content->setFixedSize(UnitsAcross(kPageWidth) - PictureDlg->width(), PictureDlg->height());
    content->layout()->setContentsMargins(UnitsAcross(kMargin), UnitsDown(kMargin),
                                          UnitsAcross(kMargin), UnitsDown(kMargin));
    content->layout()->setSpacing(UnitsDown(kGap));
    QWidget* row = Box(buttons == Buttons::Finish ? FinishRow() : ButtonRow(buttons));
    row->layout()->setContentsMargins(UnitsAcross(kMargin), UnitsDown(kMargin),
                                      UnitsAcross(kMargin), UnitsDown(kMargin));
    row->layout()->setSpacing(UnitsAcross(kButtonGap));

    Piece page = HBox({PictureDlg, content});
    page.layout->setSpacing(0);
    Arrange(VBox({page, Line(), row}));
    layout()->setContentsMargins(0, 0, 0, 0);
    layout()->setSpacing(0);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    for (QPushButton* forward : {cmdNext, CmdYes, cmdFinish})
        if (forward)
            forward->setFocus();
}

QPushButton* InstDlg::PageButton(QPushButton*& member, const char* name, const Text& caption)
{
    QPushButton* button = Button(member, name, caption, [this] { reject(); });
    button->setMinimumSize(UnitsAcross(kButtonWidth), UnitsDown(kButtonHeight));
    return button;
}

Piece InstDlg::ButtonRow(Buttons buttons)
{
    PageButton(NAMED(cmdBack), "< &Bakåt");
    cmdBack->setEnabled(!LeadsTheChain(session_.project.DialogBoxes, page_));
    const bool isAgreement = buttons == Buttons::YesNo;
    QPushButton* forward =
        isAgreement ? PageButton(NAMED(CmdYes), "&Ja") : PageButton(NAMED(cmdNext), "&Nästa >");
    QPushButton* away =
        isAgreement ? PageButton(NAMED(CmdNo), "N&ej") : PageButton(NAMED(cmdCancel), "Avbryt");
    forward->setDefault(true);
    auto* gap = new QSpacerItem(UnitsAcross(kMargin - kButtonGap), 0);
    Piece row = HBox({Stretch(), cmdBack, forward, away});
    static_cast<QBoxLayout*>(row.layout)->insertSpacerItem(row.layout->count() - 1, gap);
    return row;
}

Piece InstDlg::FinishRow()
{
    PageButton(NAMED(cmdFinish), "&Slutför")->setDefault(true);
    return HBox({Stretch(), cmdFinish});
}

} // namespace quillon
