// The file list on paper: which printer, how its pages look, and the same pages as a PDF.
#pragma once

#include "tools/list_pages.h"
#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

struct Session;
class PagePreview;

/// A printer of this machine.
struct PrinterChoice {
    Text name;
    Text port; // its place or its model, as far as the system says
};

class PrintFileList : public Form {
public:
    /// `printers` begins with the default one.
    PrintFileList(Session& session, std::vector<PrinterChoice> printers, QWidget* parent);
    ~PrintFileList() override;

    /// Prints on the printer of that name; the text says why it could not. Replaced by tests.
    std::function<std::optional<Text>(const Text& printer, const std::vector<PrintedPage>& pages)>
        print;

    QComboBox* cbPrinter = nullptr; // null where there is no printer
    QLabel* sDeviceName = nullptr;
    QLabel* sPort = nullptr;
    PagePreview* preview = nullptr;
    QLabel* sPage = nullptr;
    QPushButton* cmdPreviousPage = nullptr;
    QPushButton* cmdNextPage = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdSavePdf = nullptr;
    QPushButton* cmdClose = nullptr;

private:
    Piece PrinterPieces();
    Piece PreviewPieces();
    void ShowPrinter(int number);
    void ShowPage(std::size_t number);
    void Print();
    void SavePdf();

    Session& session_;
    std::vector<PrinterChoice> printers_;
    std::vector<PrintedPage> pages_;
    std::size_t page_ = 0;
};

void ShowPrintFileList(Session& session, QWidget* parent);

} // namespace quillon
