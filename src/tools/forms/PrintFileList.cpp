#include "tools/forms/PrintFileList.h"

#include "platform/failure_text.h"
#include "project/project_title.h"
#include "shell/session.h"
#include "tools/forms/PagePreview.h"
#include "tools/forms/page_painter.h"
#include "tools/pdf_file.h"
#include "ui/qt_text.h"

#include <QtPrintSupport/QPrinter>
#include <QtPrintSupport/QPrinterInfo>
#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPrinterNameLetters = 30;

PrinterChoice ChoiceOf(const QPrinterInfo& printer)
{
    const QString place = printer.location();
    return {FromQt(printer.printerName()),
            FromQt(place.isEmpty() ? printer.makeAndModel() : place)};
}

std::vector<PrinterChoice> PrintersOfThisMachine()
{
    std::vector<PrinterChoice> printers;
    const QPrinterInfo usual = QPrinterInfo::defaultPrinter();
    if (!usual.isNull())
        printers.push_back(ChoiceOf(usual));
    for (const QPrinterInfo& printer : QPrinterInfo::availablePrinters())
        if (printer.printerName() != usual.printerName())
            printers.push_back(ChoiceOf(printer));
    return printers;
}

std::optional<Text> PrintOnPrinter(const Text& name, const std::vector<PrintedPage>& pages)
{
    QPrinter printer(QPrinterInfo::printerInfo(ToQt(name)), QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setDocName("Fillista");
    if (PrintPages(printer, pages) && printer.printerState() != QPrinter::Error)
        return std::nullopt;
    printer.abort();
    return "Skrivaren '" + name + "' tar inte emot utskriften.";
}

} // namespace

PrintFileList::PrintFileList(Session& session, std::vector<PrinterChoice> printers, QWidget* parent)
    : Form("PrintFileList", "Skriv ut fillista", parent), print(PrintOnPrinter), session_(session),
      printers_(std::move(printers)),
      pages_(PagesOfFileList(session.project, session.state, session.host.machine.DecimalSign(),
                             session.ask))
{
    Button(NAMED(cmdPrint), "&Skriv ut", [this] { Print(); });
    Button(NAMED(cmdSavePdf), "Spara som P&DF...", [this] { SavePdf(); });
    Button(NAMED(cmdClose), "Stäng", [this] { reject(); });
    Arrange(VBox({
        PrinterPieces(),
        Growing(PreviewPieces()),
        HBox({cmdSavePdf, Stretch(), cmdPrint, cmdClose}),
    }));
    ShowPrinter(0);
    ShowPage(0);
    QPushButton* const usual = printers_.empty() ? cmdSavePdf : cmdPrint;
    cmdPrint->setEnabled(!printers_.empty());
    usual->setDefault(true);
    usual->setFocus();
}

PrintFileList::~PrintFileList() = default;

Piece PrintFileList::PrinterPieces()
{
    Named(NAMED(sDeviceName), new QLabel, "Vald skrivare");
    Named(NAMED(sPort), new QLabel, "Skrivarens plats");
    if (printers_.empty())
        return Frame("Skrivare", {Note("Det finns ingen skrivare på den här datorn. Listan kan "
                                       "sparas som PDF i stället."),
                                  sDeviceName, sPort});
    Named(NAMED(cbPrinter), new QComboBox);
    for (const PrinterChoice& printer : printers_)
        cbPrinter->addItem(ToQt(printer.name));
    connect(cbPrinter, &QComboBox::currentIndexChanged, this, [this](int i) { ShowPrinter(i); });
    return Frame("Skrivare", {Fields({
                                 {"&Välj skrivare:", MinWidth(kPrinterNameLetters, cbPrinter)},
                                 {"Skrivare:", sDeviceName},
                                 {"Port:", sPort},
                             })});
}

Piece PrintFileList::PreviewPieces()
{
    Named(NAMED(preview), new PagePreview, "Förhandsgranskning");
    Named(NAMED(sPage), new QLabel, "Sida");
    Button(NAMED(cmdPreviousPage), "&Föregående sida", [this] { ShowPage(page_ - 1); });
    Button(NAMED(cmdNextPage), "&Nästa sida", [this] { ShowPage(page_ + 1); });
    return VBox({
        Growing(preview),
        HBox({Stretch(), cmdPreviousPage, sPage, cmdNextPage, Stretch()}),
    });
}

void PrintFileList::ShowPrinter(int number)
{
    const bool isThere = number >= 0 && static_cast<std::size_t>(number) < printers_.size();
    const PrinterChoice printer =
        isThere ? printers_[static_cast<std::size_t>(number)] : PrinterChoice();
    sDeviceName->setText(ToQt(printer.name));
    sPort->setText(ToQt(printer.port));
    sDeviceName->setVisible(isThere);
    sPort->setVisible(isThere);
}

void PrintFileList::ShowPage(std::size_t number)
{
    page_ = number;
    preview->ShowPage(pages_[page_]);
    sPage->setText(QString("Sida %1 av %2").arg(page_ + 1).arg(pages_.size()));
    cmdPreviousPage->setEnabled(page_ > 0);
    cmdNextPage->setEnabled(page_ + 1 < pages_.size());
}

void PrintFileList::Print()
{
    if (!HasRowsToPrint(session_.project.Files, session_.ask))
        return;
    session_.ask.ShowBusyPointer(true);
    const auto failure = print(FromQt(sDeviceName->text()), pages_);
    session_.ask.ShowBusyPointer(false);
    if (failure)
        session_.ask.Critical("Fel", *failure);
}

void PrintFileList::SavePdf()
{
    if (!HasRowsToPrint(session_.project.Files, session_.ask))
        return;
    const auto file = session_.ask.SaveFile({.title = "Spara som PDF",
                                             .fileName = "Fillista.pdf",
                                             .filter = "PDF-filer (*.pdf)|*.pdf",
                                             .defaultExtension = ".pdf",
                                             .isForProject = false});
    if (!file || file->empty())
        return;
    try {
        WritePdf(session_.host.files, *file, pages_,
                 "Fillista - " + ProjectTitle(session_.state.ProjectFileName),
                 session_.host.machine.Now());
    } catch (const RunError& error) {
        session_.ask.Critical("Fel", FailureText(error, *file));
    }
}

void ShowPrintFileList(Session& session, QWidget* parent)
{
    PrintFileList(session, PrintersOfThisMachine(), parent).ShowModal();
}

} // namespace quillon
