#include "tools/forms/PrintFileList.h"

#include "support/window_test.h"
#include "tools/forms/PagePreview.h"
#include "tools/forms/page_painter.h"

#include <QPdfWriter>
#include <gmock/gmock.h>

namespace quillon::test {
namespace {

using testing::SizeIs;
using testing::StartsWith;

class PrintFileListTest : public WindowTest {
protected:
    PrintFileListTest() { AddRows(60); }

    void AddRows(int count)
    {
        for (int i = 0; i < count; ++i) {
            FileListRow row;
            row[Filename] = "fil" + std::to_string(i) + ".dll";
            row[Destination] = "%DESTDIR\\Bibliotek";
            row[Size] = "12,5";
            row[Date] = "2004-02-29";
            row[Time] = "12:30";
            session.project.Files.rows.push_back(row);
        }
    }

    const std::vector<PrinterChoice> printers{{"Laser", "Rum 3"}, {"Bläck", "USB001"}};
};

TEST_F(PrintFileListTest, ShowsThePrinterAndTheFirstPage)
{
    PrintFileList form(session, printers, nullptr);
    EXPECT_EQ(form.windowTitle(), "Skriv ut fillista");
    EXPECT_EQ(form.sDeviceName->text(), "Laser");
    EXPECT_EQ(form.sPort->text(), "Rum 3");
    EXPECT_EQ(form.sPage->text(), "Sida 1 av 2");
    EXPECT_FALSE(form.cmdPreviousPage->isEnabled());
    Click(form, "cmdNextPage");
    EXPECT_EQ(form.sPage->text(), "Sida 2 av 2");
    EXPECT_FALSE(form.cmdNextPage->isEnabled());
    Click(form, "cmdPreviousPage");
    EXPECT_EQ(form.sPage->text(), "Sida 1 av 2");
}

TEST_F(PrintFileListTest, PrintsOnTheChosenPrinter)
{
    PrintFileList form(session, printers, nullptr);
    form.cbPrinter->setCurrentIndex(1);
    EXPECT_EQ(form.sDeviceName->text(), "Bläck");
    EXPECT_EQ(form.sPort->text(), "USB001");
    Text used;
    form.print = [&](const Text& printer, const std::vector<PrintedPage>& pages) {
        used = printer;
        EXPECT_THAT(pages, SizeIs(2));
        EXPECT_TRUE(ask.busyPointer);
        return std::optional<Text>();
    };
    Click(form, "cmdPrint");
    EXPECT_EQ(used, "Bläck");
    EXPECT_FALSE(ask.busyPointer);
}

TEST_F(PrintFileListTest, TellsWhatThePrinterTells)
{
    PrintFileList form(session, printers, nullptr);
    form.print = [](const Text&, const std::vector<PrintedPage>&) {
        return std::optional<Text>("Slut på papper.");
    };
    ask.Expect({BoxKind::Critical, "Fel", "Slut på papper."});
    Click(form, "cmdPrint");
    EXPECT_FALSE(ask.busyPointer);
}

TEST_F(PrintFileListTest, PrintsNoEmptyList)
{
    session.project.Files.rows.clear();
    PrintFileList form(session, printers, nullptr);
    form.print = [](const Text&, const std::vector<PrintedPage>&) {
        ADD_FAILURE() << "an empty list was printed";
        return std::optional<Text>();
    };
    ask.Expect({BoxKind::Inform, "Info", "Det finns inga filer i fillistan!"});
    Click(form, "cmdPrint");
    ask.Expect({BoxKind::Inform, "Info", "Det finns inga filer i fillistan!"});
    Click(form, "cmdSavePdf");
}

TEST_F(PrintFileListTest, OffersThePdfWhereThereIsNoPrinter)
{
    PrintFileList form(session, {}, nullptr);
    ShowActive(form);
    EXPECT_FALSE(form.cmdPrint->isEnabled());
    EXPECT_FALSE(form.sDeviceName->isVisible());
    EXPECT_TRUE(form.cmdSavePdf->isDefault());
    ask.choices.push_back({{"C:\\ut.pdf"}});
    Click(form, "cmdSavePdf");
    EXPECT_EQ(ask.questions.back().fileName, "Fillista.pdf");
    EXPECT_EQ(ask.questions.back().filter, "PDF-filer (*.pdf)|*.pdf");
    EXPECT_THAT(machine.files.Get("C:\\ut.pdf"), StartsWith("%PDF-"));
    SavePicture(form, "PrintFileList_without_printer");
}

TEST_F(PrintFileListTest, TellsWhereThePdfCanNotBeWritten)
{
    PrintFileList form(session, printers, nullptr);
    ask.choices.push_back({{"C:\\ut.pdf"}});
    machine.files.FailFromWrite(1, 61);
    ask.Expect({BoxKind::Critical, "Fel", "Disken är full: 'C:\\ut.pdf'."});
    Click(form, "cmdSavePdf");
}

TEST_F(PrintFileListTest, ShowsThePrintersOfThisMachine)
{
    bool isShown = false;
    OnNextDialog([&](QDialog& dialog) {
        const auto& form = static_cast<PrintFileList&>(dialog);
        EXPECT_EQ(form.objectName(), "PrintFileList");
        // On any machine: printing is offered only with a printer, the PDF always.
        EXPECT_EQ(form.cmdPrint->isEnabled(), form.cbPrinter != nullptr);
        EXPECT_TRUE(form.cmdSavePdf->isEnabled());
        isShown = true;
        Click(dialog, "cmdClose");
    });
    ShowPrintFileList(session, nullptr);
    EXPECT_TRUE(isShown);
}

TEST_F(PrintFileListTest, ClosesByItsButton)
{
    PrintFileList form(session, printers, nullptr);
    ShowActive(form);
    Click(form, "cmdClose");
    EXPECT_FALSE(form.isVisible());
}

// A device that is no printer, so that what the painter draws can be looked at.
TEST_F(PrintFileListTest, DrawsARuleWhereThePageHasOne)
{
    const auto pages = PagesOfFileList(session.project, session.state, ',', session.ask);
    QImage paper(2100, 2970, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    DrawPage(painter, pages[0], paper.rect());
    painter.end();
    const auto darkIn = [&](QRect place) {
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                if (qGray(paper.pixel(x, y)) < 128)
                    return true;
        return false;
    };
    EXPECT_TRUE(darkIn({1000, 207, 10, 6}));   // the rule at 21 mm
    EXPECT_FALSE(darkIn({100, 207, 60, 6}));   // left of it
    EXPECT_FALSE(darkIn({1910, 207, 100, 6})); // right of it
    EXPECT_TRUE(darkIn({170, 612, 80, 40}));   // the first row's name
    EXPECT_FALSE(darkIn({170, 0, 1700, 148})); // above the title
}

TEST_F(PrintFileListTest, PrintsEveryPage)
{
    const auto pages = PagesOfFileList(session.project, session.state, ',', session.ask);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter device(&bytes);
        EXPECT_TRUE(PrintPages(device, pages));
    }
    EXPECT_EQ(bytes.data().count("/Type /Page\n"), 2);
}

TEST_F(PrintFileListTest, TellsOfADeviceThatRefuses)
{
    QPdfWriter device("/proc/no/such/file.pdf");
    EXPECT_FALSE(PrintPages(device, std::vector<PrintedPage>(1)));
}

TEST_F(PrintFileListTest, LooksRight)
{
    session.state.ProjectFileName = "C:\\Projekt\\Hej.qnp";
    session.project.ProjectName.ProjectName = "Hej";
    PrintFileList form(session, printers, nullptr);
    ShowActive(form);
    SavePicture(form, "PrintFileList");
    SaveDarkPicture(form, "PrintFileList");
}

} // namespace
} // namespace quillon::test
