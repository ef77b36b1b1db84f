// The form of the Create command: its controls, and whole runs from its button.
#include "builder/forms/DlgCreate.h"

#include "builder/forms/MediumPicture.h"
#include "shell/main_window.h"
#include "support/linked_program.h"
#include "support/plain_icon.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

const ExpectedBox kFirstDisk{BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr 1!"};

/// A user during whose boxes something happens: `onBox` runs as each box comes up,
/// `onProcessEvents` each time that events are handled.
class WatchedAsk : public ScriptedAsk {
public:
    using ScriptedAsk::ScriptedAsk;

    bool OkCancel(const Text& title, const Text& text) override
    {
        if (onBox)
            onBox(text);
        return ScriptedAsk::OkCancel(title, text);
    }
    void Critical(const Text& title, const Text& text) override
    {
        if (onBox)
            onBox(text);
        ScriptedAsk::Critical(title, text);
    }
    void ProcessEvents() override
    {
        if (onProcessEvents)
            onProcessEvents();
        QApplication::processEvents();
    }

    std::function<void(const Text& text)> onBox;
    std::function<void()> onProcessEvents;
};

class DlgCreateTest : public testing::Test {
protected:
    DlgCreateTest()
    {
        for (const char* program : {"SETUP32.EXE", "Small32\\QNS32X.EXE", "Full32\\QNS32X.EXE",
                                    "DUNZIP32.DLL", "QNREG32.EXE", "QNXREG2.EXE", "QNXUNIN.EXE"})
            machine.files.Put(Text("C:\\Quillon\\Release\\") + program, program);
        machine.files.Put("C:\\Quillon\\Language\\SWEDISH.LNG", "[PreLoader]\r\n");
        machine.files.PutFolder("C:\\TEMP");
        machine.files.PutFolder("C:\\WINDOWS\\SYSTEM32");
        machine.files.PutFolder("C:\\Ut");
    }

    /// A session with a project that goes through. The boxes must come in this order.
    Session& Open(std::deque<ExpectedBox> script = {})
    {
        ask = std::make_unique<WatchedAsk>(std::move(script));
        session = std::make_unique<Session>(NewSession(machine.host, *ask, "C:\\Quillon"));
        Project& project = session->project;
        project.ProjectName.ProjectName = "Demo";
        project.InstallDirectories.DestinationDirectory = "%PROGDIR\\Demo";
        project.LastDirectories = {"C:\\Ut", "C:\\Cd", "C:\\Trad", "C:\\Natet"};
        project.Media.TargetMedia = Integer(Medium::CompressedCd);
        AddFile("a.txt", "bytes");
        return *session;
    }

    void AddFile(const Text& name, const Text& bytes)
    {
        machine.files.Put("C:\\Data\\" + name, bytes);
        FileListRow row;
        row[Filename] = name;
        row[Destination] = "%DESTDIR";
        row[Source] = "c:\\data\\" + name;
        session->project.Files.rows.push_back(row);
    }

    static std::vector<Text> Lines(DlgCreate& form)
    {
        std::vector<Text> lines;
        for (int row = 0; row < form.lbStatus->count(); ++row)
            lines.push_back(FromQt(form.lbStatus->item(row)->text()));
        return lines;
    }

    MemoryHost machine;
    std::unique_ptr<WatchedAsk> ask;
    std::unique_ptr<Session> session;
};

struct MediumCase {
    Medium medium;
    const char* button;
    const char* picture;
    const char* toolTip;
    const char* folder; // that a click brings
};
const MediumCase kCases[] = {
    {Medium::Floppy, "oFloppy", "PictureFloppy", "Skapa installation på disketter", "A:\\"},
    {Medium::CompressedCd, "oCD_Compress", "PictureCD", "Skapa installation för CD/DVD", "C:\\Cd"},
    {Medium::CdTree, "oCD_NoCompress", "PictureCD2", "Skapa installation för CD/DVD (färdigt träd)",
     "C:\\Trad"},
    {Medium::Internet, "oInternet", "PictureInternet",
     "Skapa en självuppackande installationsfil (en enda EXE-fil) för Internet", "C:\\Natet"}};

TEST_F(DlgCreateTest, OpensWithWhatTheProjectHolds)
{
    for (const MediumCase& medium : kCases) {
        Open().project.Media.TargetMedia = Integer(medium.medium);
        session->project.OperatingSystem.TargetOperatingSystem = 1;
        DlgCreate form(*session, nullptr);
        EXPECT_TRUE(Find<QRadioButton>(form, medium.button).isChecked());
        const bool isFloppy = medium.medium == Medium::Floppy;
        EXPECT_EQ(TextIn(form, "tDestinationDir"), isFloppy ? "A:\\" : "C:\\Ut");
        EXPECT_EQ(form.CmdSelectDirectory->isEnabled(), !isFloppy);
        EXPECT_EQ(form.cbOS->count(), 2);
        EXPECT_EQ(form.cbOS->currentText(), "Endast Windows ME, Windows 2000 och Windows XP");
        EXPECT_EQ(form.cbOS->itemText(0), "Alla Windows-versioner (fr.o.m Windows 95)");
        EXPECT_EQ(form.lbStatus->count(), 0);
        EXPECT_EQ(session->state.ProjectIsDirty, kOff);
    }
}

TEST_F(DlgCreateTest, ARadioButtonBringsItsFolder)
{
    Open();
    DlgCreate form(*session, nullptr);
    // Opening has given the medium of the project the project's own folder.
    session->project.LastDirectories.LastDir_Create_CdCompress = "C:\\Cd";
    ShowActive(form);
    for (const MediumCase& medium : kCases) {
        session->state.ProjectIsDirty = kOff;
        Click(form, medium.button);
        EXPECT_EQ(TextIn(form, "tDestinationDir"), medium.folder);
        EXPECT_EQ(form.CmdSelectDirectory->isEnabled(), medium.medium != Medium::Floppy);
        EXPECT_EQ(session->state.ProjectIsDirty, kOn);
    }
}

TEST_F(DlgCreateTest, APictureChoosesAndFocusesItsRadioButton)
{
    Open();
    DlgCreate form(*session, nullptr);
    session->project.LastDirectories.LastDir_Create_CdCompress = "C:\\Cd";
    ShowActive(form);
    for (const MediumCase& medium : kCases) {
        Click(form, medium.picture);
        auto& button = Find<QRadioButton>(form, medium.button);
        EXPECT_TRUE(button.isChecked()) << medium.picture;
        EXPECT_TRUE(button.hasFocus()) << medium.picture;
        EXPECT_EQ(TextIn(form, "tDestinationDir"), medium.folder);
        auto& picture = Find<QAbstractButton>(form, medium.picture);
        EXPECT_EQ(FromQt(picture.toolTip()), medium.toolTip);
        EXPECT_EQ(FromQt(picture.accessibleName()), medium.toolTip);
    }
}

TEST_F(DlgCreateTest, TheMouseHighlightsOnePictureAtATime)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    const auto highlighted = [&] {
        std::vector<Text> names;
        for (MediumPicture* picture :
             {form.PictureFloppy, form.PictureCD, form.PictureCD2, form.PictureInternet})
            if (picture->IsHighlighted())
                names.push_back(FromQt(picture->objectName()));
        return names;
    };
    EXPECT_TRUE(highlighted().empty());
    // The mouse may lie where the first picture is.
    MoveMouse(form, {3, form.height() / 2});
    for (QWidget* outside : {static_cast<QWidget*>(&form), static_cast<QWidget*>(form.FrameType)}) {
        for (const MediumCase& medium : kCases) {
            auto& picture = Find<QAbstractButton>(form, medium.picture);
            MoveMouse(picture, picture.rect().center());
            EXPECT_EQ(highlighted(), std::vector<Text>{medium.picture});
        }
        MoveMouse(*outside, {3, outside->height() / 2});
        EXPECT_TRUE(highlighted().empty()) << FromQt(outside->objectName());
    }
}

TEST_F(DlgCreateTest, KeepsATypedFolderForItsMedium)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "oCD_NoCompress");
    session->state.ProjectIsDirty = kOff;
    Type(form, "tDestinationDir", "D:\\Ny");
    EXPECT_EQ(session->project.LastDirectories.LastDir_Create_CdTree, "D:\\Ny");
    EXPECT_EQ(session->state.ProjectIsDirty, kOn);
    Click(form, "oFloppy");
    Type(form, "tDestinationDir", "B:\\");
    Click(form, "oCD_NoCompress");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "D:\\Ny");
    EXPECT_EQ(session->project.LastDirectories.LastDir_Create_Internet, "C:\\Natet");
}

TEST_F(DlgCreateTest, PicksAFolder)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    ask->choices = {{{"E:\\Valt"}}, {}};
    Click(form, "CmdSelectDirectory");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "E:\\Valt");
    EXPECT_EQ(session->project.LastDirectories.LastDir_Create_CdCompress, "E:\\Valt");
    EXPECT_EQ(ask->questions[0].title,
              "Välj en katalog (mapp) i listan nedanför och tryck därefter på 'OK'. Alla "
              "installationsfiler kommer att kopieras till den valda katalogen.");
    EXPECT_EQ(ask->questions[0].folder, "C:\\Ut");
    Click(form, "CmdSelectDirectory");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "E:\\Valt");
}

TEST_F(DlgCreateTest, TakesNoPickedFolderThatTheProjectWouldCut)
{
    const Text folder = "C:\\" + Text(197, 'x');
    Open({{BoxKind::Inform, "Ogiltig katalog",
           "Katalogen '" + folder + "' är längre än 199 tecken! Välj en annan katalog."}});
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    ask->choices = {{{folder}}};
    Click(form, "CmdSelectDirectory");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "C:\\Ut");
}

TEST_F(DlgCreateTest, TakesATypedPathOfThisMachine)
{
    const HostPaths paths{.toHost = {}, .toWindows = [](const std::string& path) {
                              return std::optional("Z:" + ReplaceAll(path, "/", "\\"));
                          }};
    machine.files.PutFolder("Z:\\home\\me\\x");
    Open();
    DlgCreate form(*session, nullptr, {}, paths);
    ShowActive(form);
    Type(form, "tDestinationDir", "/home/me/x");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "/home/me/x");
    form.cbOS->setFocus();
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "Z:\\home\\me\\x");
    Type(form, "tDestinationDir", "/home/me/x");
    Click(form, "cmdCreate");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), "Z:\\home\\me\\x");
    EXPECT_TRUE(machine.files.FileExists("Z:\\home\\me\\x\\QNSETUP.INF"));
    Click(form, "cmdClose");
    EXPECT_EQ(session->project.LastDirectories.CreatationDestDir, "Z:\\home\\me\\x");
}

TEST_F(DlgCreateTest, TakesNoTypedPathThatTheProjectWouldCut)
{
    const HostPaths paths{.toHost = {}, .toWindows = [](const std::string& path) {
                              return std::optional("Z:" + ReplaceAll(path, "/", "\\"));
                          }};
    const Text typed = "/" + Text(197, 'x');
    Open({{BoxKind::Inform, "Ogiltig katalog",
           "Katalogen 'Z:\\" + Text(197, 'x') +
               "' är längre än 199 tecken! Välj en annan katalog."}});
    DlgCreate form(*session, nullptr, {}, paths);
    ShowActive(form);
    Type(form, "tDestinationDir", typed);
    Click(form, "cmdCreate");
    EXPECT_EQ(TextIn(form, "tDestinationDir"), typed);
}

TEST_F(DlgCreateTest, StoresItsChoicesHoweverItIsClosed)
{
    for (const char* way : {"cmdClose", "Esc", "window"}) {
        Open();
        DlgCreate form(*session, nullptr);
        ShowActive(form);
        Click(form, "oCD_NoCompress");
        Type(form, "tDestinationDir", "D:\\Ny");
        form.cbOS->setFocus();
        QTest::keyClick(form.cbOS, Qt::Key_Down);
        if (Text(way) == "cmdClose")
            Click(form, "cmdClose");
        else if (Text(way) == "Esc")
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            form.close();
        EXPECT_FALSE(form.isVisible()) << way;
        const Project& project = session->project;
        EXPECT_EQ(project.Media.TargetMedia, Integer(Medium::CdTree)) << way;
        EXPECT_EQ(project.LastDirectories.CreatationDestDir, "D:\\Ny") << way;
        EXPECT_EQ(project.OperatingSystem.TargetOperatingSystem, 1) << way;
        EXPECT_EQ(project.Compression.CompressFiles, kOn) << way;
    }
}

TEST_F(DlgCreateTest, OpensTheOptionsOfTheToolAndOfCompression)
{
    Open();
    int opened = 0;
    DlgCreate form(*session, nullptr, [&](QWidget* parent) { opened += parent != nullptr; });
    ShowActive(form);
    Click(form, "CmdOptions");
    EXPECT_EQ(opened, 1);
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.objectName(), "DlgCompressOptions");
        Click(dialog, "cUseCompression");
        Click(dialog, "cmdOK");
    });
    Click(form, "cmdCompressOptions");
    form.close();
    EXPECT_EQ(session->project.Compression.CompressFiles, kOff);
}

TEST_F(DlgCreateTest, MakesAPackageAndTellsEachStep)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    EXPECT_EQ(form.cmdOpenFolder->text(), "");
    Click(form, "cmdCreate");
    const std::vector<Text> lines = Lines(form);
    ASSERT_GT(lines.size(), 5U);
    EXPECT_EQ(lines.front(),
              "** Skapar 32 bitars installationsuppsättning för CD (komprimerat) **");
    EXPECT_EQ(lines.back(), "Färdig!");
    EXPECT_EQ(form.lbStatus->currentRow(), form.lbStatus->count() - 1);
    EXPECT_TRUE(machine.files.FileExists("C:\\Ut\\FILEDATA.DAT"));
    EXPECT_TRUE(machine.files.FileExists("C:\\Ut\\QNSETUP.INF"));
    EXPECT_EQ(ask->beeps, 1);
    EXPECT_TRUE(form.cmdCreate->isEnabled());
    EXPECT_TRUE(form.CmdOptions->isEnabled());
    EXPECT_TRUE(form.HasRun());
    EXPECT_FALSE(form.IsListSorted());
    QApplication::processEvents();
    SavePicture(form, "DlgCreate_done");
    SaveDarkPicture(form, "DlgCreate_done");
}

TEST_F(DlgCreateTest, TellsSizeAndTimeAndOffersToCloseBehindASuccess)
{
    Open();
    session->project.Compression.CompressFiles = kOff;
    AddFile("stor.dat", Text(20 << 20, 'x'));
    machine.files.Put("C:\\Ut\\annat.txt", std::string(20 << 20, 'x'));
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.cmdCreate->isDefault());
    EXPECT_EQ(form.lblSummary->text(), "");
    Click(form, "cmdCreate");
    EXPECT_TRUE(form.lblSummary->text().startsWith("20,0 MB på "))
        << FromQt(form.lblSummary->text());
    EXPECT_TRUE(form.lblSummary->text().endsWith(" s"));
    EXPECT_TRUE(form.cmdClose->isDefault());
    EXPECT_TRUE(form.cmdClose->hasFocus());
    Click(form, "oCD_NoCompress");
    EXPECT_TRUE(form.cmdCreate->isDefault()) << "another package is wanted";
    Click(form, "oCD_Compress");
    Type(form, "tDestinationDir", "C:\\Ut");
    Click(form, "cmdCreate");
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(DlgCreateTest, WritesTheSizeOfTheDesignSurface)
{
    Open().surface.width = 801;
    session->surface.height = 602;
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    const Text information = machine.files.Get("C:\\Ut\\QNSETUP.INF");
    EXPECT_NE(information.find("DesWidth = 801\r\nDesHeight = 602\r\n"), Text::npos);
}

TEST_F(DlgCreateTest, LinksToTheFinishedFolder)
{
    Open({{BoxKind::Critical, "Kan ej öppna katalogen", "Filen 'C:\\Ut' finns inte."}});
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    EXPECT_NE(form.cmdOpenFolder->text().indexOf("C:\\Ut"), -1);
    QTest::keyClick(&form, Qt::Key_Odiaeresis, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !machine.machine.started.empty(); }));
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started[0].first, "C:\\Ut");
    machine.machine.startFailure = ErrorNumber::kFileNotFound;
    Click(form, "cmdOpenFolder");
}

TEST_F(DlgCreateTest, NothingCanBeChangedOrClosedWhileItRuns)
{
    Open({kFirstDisk});
    session->project.Media.TargetMedia = Integer(Medium::Floppy);
    machine.files.PutFolder("A:\\");
    QWidget window;
    window.show();
    DlgCreate form(*session, &window);
    ShowActive(form);
    int yields = 0;
    ask->onProcessEvents = [&] {
        if (form.lbStatus->count() == 0 || ++yields > 1)
            return;
        for (QWidget* control :
             {static_cast<QWidget*>(form.oFloppy), static_cast<QWidget*>(form.PictureCD),
              static_cast<QWidget*>(form.tDestinationDir), static_cast<QWidget*>(form.cbOS),
              static_cast<QWidget*>(form.CmdSelectDirectory),
              static_cast<QWidget*>(form.cmdCompressOptions),
              static_cast<QWidget*>(form.CmdOptions), static_cast<QWidget*>(form.cmdCreate),
              static_cast<QWidget*>(form.cmdClose)})
            EXPECT_FALSE(control->isEnabled()) << FromQt(control->objectName());
        EXPECT_TRUE(form.lbStatus->isEnabled());
        QTest::keyClick(&form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        QTest::keyClick(&form, Qt::Key_Return);
        EXPECT_FALSE(form.close());
        EXPECT_TRUE(form.isVisible());
        EXPECT_FALSE(window.close());
        EXPECT_TRUE(window.isVisible());
        SavePicture(form, "DlgCreate_running");
    };
    // Many files, so that the run takes long enough for events to be handled.
    for (int i = 0; i < 3000; ++i)
        AddFile(NumberText(i).append(".bin"), Text(2000, static_cast<char>('a' + i % 20)));
    Click(form, "cmdCreate");
    EXPECT_GT(yields, 0);
    EXPECT_EQ(Lines(form).back(), "Färdig!");
    EXPECT_TRUE(form.close());
    EXPECT_TRUE(window.close());
}

TEST_F(DlgCreateTest, StaysShutAfterAFailureAndNamesTheFile)
{
    Open({{BoxKind::Critical, "Fel", "Fel! Kan ej skriva till destinationsenheten!"}});
    session->project.InstallOptions.CreateAutorunFile = kOn;
    machine.files.RefuseOutput("C:\\Ut\\AUTORUN.INF", ErrorNumber::kDiskFull);
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    ask->onBox = [&](const Text&) { EXPECT_EQ(Lines(form).back(), "Kan ej skapa!"); };
    Click(form, "cmdCreate");
    EXPECT_EQ(FromQt(form.lbStatus->currentItem()->text()),
              "Disken är full: 'C:\\Ut\\AUTORUN.INF'.");
    EXPECT_FALSE(form.cmdCreate->isEnabled());
    EXPECT_FALSE(form.CmdOptions->isEnabled());
    EXPECT_TRUE(form.cmdClose->isEnabled());
    EXPECT_EQ(form.cmdOpenFolder->text(), "");
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    DlgCreate anew(*session, nullptr);
    EXPECT_TRUE(anew.cmdCreate->isEnabled());
    EXPECT_TRUE(anew.CmdOptions->isEnabled());
}

TEST_F(DlgCreateTest, TellsBehindTheLinesWhichFileStoodInTheWay)
{
    Open();
    machine.files.At("C:\\Data\\a.txt").unreadable = true;
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    const std::vector<Text> lines = Lines(form);
    ASSERT_GT(lines.size(), 2U);
    EXPECT_EQ(lines[lines.size() - 2], "Processen avbruten!");
    EXPECT_EQ(lines.back(), "Åtkomst nekas till 'c:\\data\\a.txt'.");
    EXPECT_EQ(form.cmdOpenFolder->text(), "");
    EXPECT_TRUE(form.cmdCreate->isEnabled());
}

TEST_F(DlgCreateTest, StopsAtACheckWithNothingWritten)
{
    Open({{BoxKind::Inform, "Fel", "Kan ej skapa! Det finns inga filer i fillistan!"}});
    session->project.Files.rows.clear();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    EXPECT_EQ(form.lbStatus->count(), 0);
    EXPECT_TRUE(form.cmdCreate->isEnabled());
    EXPECT_TRUE(machine.files.List("C:\\Ut").empty());
}

TEST_F(DlgCreateTest, MakesOneProgramForTheInternet)
{
    Open();
    machine.files.PutFolder("C:\\Natet");
    machine.files.Put("C:\\Quillon\\Release\\QNSELFX.EXE", MakeLinkedProgram({}));
    machine.files.Put("C:\\Quillon\\Res\\SelfExtract.ico", PlainIconFile());
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "oInternet");
    Click(form, "cmdCreate");
    ASSERT_GT(form.lbStatus->count(), 2);
    EXPECT_EQ(FromQt(form.lbStatus->item(form.lbStatus->count() - 1)->text()), "Färdig!");
    ASSERT_EQ(machine.files.List("C:\\Natet").size(), 1U);
    EXPECT_EQ(machine.files.List("C:\\Natet")[0].name, "self.exe");
    EXPECT_TRUE(form.cmdCreate->isEnabled());
}

Text Noise(std::size_t size)
{
    Text noise(size, ' ');
    std::uint32_t state = 1;
    for (char& byte : noise) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(state >> 24U);
    }
    return noise;
}

// A drive takes one disk after the other, and the first one once more for the number of disks.
TEST_F(DlgCreateTest, AsksForEachDiskOfADrive)
{
    constexpr const char* kAsk = "Diskett";
    Open({kFirstDisk,
          {BoxKind::OkCancel, kAsk, "Stoppa in diskett nr 2!"},
          {BoxKind::OkCancel, kAsk, "Stoppa in diskett nr 2!"},
          {BoxKind::OkCancel, kAsk, "Stoppa in diskett nr 3!"},
          {BoxKind::OkCancel, kAsk, "Stoppa in diskett nr 1!"},
          {BoxKind::OkCancel, kAsk, "Stoppa in diskett nr 1!"}});
    AddFile("brus.bin", Noise(250'000));
    session->project.Media.TargetMedia = Integer(Medium::Floppy);
    machine.files.PutFolder("A:\\");
    machine.files.capacities["a:\\"] = 100'000;
    std::vector<std::map<Text, MemoryFiles::Node>> disks;
    const auto takeDiskOut = [&] {
        std::map<Text, MemoryFiles::Node> disk;
        std::erase_if(machine.files.nodes, [&](const auto& node) {
            const bool isOnIt = node.first.starts_with("a:\\") && node.first.size() > 3;
            if (isOnIt)
                disk.insert(node);
            return isOnIt;
        });
        return disk;
    };
    int boxes = 0;
    ask->onBox = [&](const Text&) {
        ++boxes;
        // The user forgets to change the disk before the first answer for disk 2, and before the
        // last one.
        if (boxes == 3 || boxes == 4)
            disks.push_back(takeDiskOut());
        if (boxes == 6) {
            disks.push_back(takeDiskOut());
            machine.files.nodes.insert(disks[0].begin(), disks[0].end());
        }
    };
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    EXPECT_EQ(Lines(form).back(), "Färdig!");
    EXPECT_EQ(Lines(form)[static_cast<std::size_t>(form.lbStatus->count()) - 2],
              "Antal skapade installationsdisketter: 3 st");
    ASSERT_EQ(disks.size(), 3U);
    EXPECT_EQ(disks[1].size(), 1U) << "no disk but the first has anything but its piece";
    EXPECT_EQ(disks[2].size(), 1U);
    EXPECT_NE(machine.files.Get("A:\\QNSETUP.INF").find("Floppies=3\r\n"), Text::npos);
}

TEST_F(DlgCreateTest, ACancelledDiskEndsTheRun)
{
    Open({kFirstDisk, {BoxKind::OkCancel, "Diskett", "Stoppa in diskett nr 2!", Answer::Cancel}});
    AddFile("brus.bin", Noise(250'000));
    session->project.Media.TargetMedia = Integer(Medium::Floppy);
    machine.files.PutFolder("A:\\");
    machine.files.capacities["a:\\"] = 100'000;
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    EXPECT_EQ(Lines(form).back(), "Nästa diskett saknas.");
    EXPECT_TRUE(form.cmdCreate->isEnabled());
}

TEST_F(DlgCreateTest, FoldersStandForDisks)
{
    Open({kFirstDisk});
    AddFile("brus.bin", Noise(3'000'000));
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "oFloppy");
    Type(form, "tDestinationDir", "C:\\Ut");
    machine.files.Put("C:\\Ut\\disk4\\FILEDATA.DAT", "of an earlier package");
    Click(form, "cmdCreate");
    EXPECT_EQ(Lines(form).back(), "Färdig!");
    EXPECT_TRUE(machine.files.FileExists("C:\\Ut\\disk2\\FILEDATA.DAT"));
    EXPECT_TRUE(machine.files.FileExists("C:\\Ut\\disk3\\FILEDATA.DAT"));
    EXPECT_FALSE(machine.files.DirExists("C:\\Ut\\disk4"));
}

TEST_F(DlgCreateTest, TellsThatALongListWasSorted)
{
    Open().project.InstallOptions.UninstallSupport = kOn;
    for (int i = 0; i < 1000; ++i)
        AddFile(NumberText(i).append(".bin"), "x");
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    EXPECT_EQ(Lines(form).back(), "Färdig!");
    EXPECT_TRUE(form.IsListSorted());
}

TEST_F(DlgCreateTest, CanBeUsedWithTheKeyboardAlone)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    EXPECT_TRUE(form.oCD_Compress->hasFocus());
    const std::pair<Qt::Key, QWidget*> letters[] = {
        {Qt::Key_D, form.oFloppy},         {Qt::Key_R, form.oCD_NoCompress},
        {Qt::Key_I, form.oInternet},       {Qt::Key_C, form.oCD_Compress},
        {Qt::Key_K, form.tDestinationDir}, {Qt::Key_M, form.cbOS},
        {Qt::Key_U, form.lbStatus}};
    for (const auto& [key, control] : letters) {
        QTest::keyClick(&form, key, Qt::AltModifier);
        EXPECT_TRUE(control->hasFocus()) << FromQt(control->objectName());
        if (auto* button = qobject_cast<QRadioButton*>(control))
            EXPECT_TRUE(QTest::qWaitFor([&] { return button->isChecked(); }));
    }
    form.oCD_Compress->setFocus();
    for (QWidget* next : std::initializer_list<QWidget*>{
             form.tDestinationDir, form.CmdSelectDirectory, form.cbOS, form.cmdCompressOptions,
             form.lbStatus, form.CmdOptions, form.cmdCreate, form.cmdClose}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), next)
            << FromQt(QApplication::focusWidget()->objectName());
    }
    form.tDestinationDir->setText("C:\\Ut");
    form.tDestinationDir->setFocus();
    QTest::keyClick(form.tDestinationDir, Qt::Key_Return);
    EXPECT_EQ(Lines(form).back(), "Färdig!");
    QTest::keyClick(&form, Qt::Key_T, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
}

TEST_F(DlgCreateTest, NoTwoCaptionsShareALetter)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    Click(form, "cmdCreate");
    std::map<QString, QString> taken;
    const auto take = [&](const QString& caption) {
        const QString letter = QKeySequence::mnemonic(caption).toString();
        if (!letter.isEmpty())
            EXPECT_TRUE(taken.emplace(letter, caption).second)
                << FromQt(caption) << " and " << FromQt(taken[letter]);
    };
    for (QAbstractButton* button : form.findChildren<QAbstractButton*>())
        take(button->text());
    for (QLabel* label : form.findChildren<QLabel*>())
        take(label->text());
    EXPECT_EQ(taken.size(), 13U);
}

TEST_F(DlgCreateTest, EveryControlHasASpokenName)
{
    Open();
    DlgCreate form(*session, nullptr);
    for (QWidget* control : std::initializer_list<QWidget*>{
             form.tDestinationDir, form.cbOS, form.lbStatus, form.pbProgress, form.PictureFloppy})
        EXPECT_NE(control->accessibleName(), "") << FromQt(control->objectName());
}

TEST_F(DlgCreateTest, LooksRight)
{
    Open();
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    MoveMouse(*form.PictureFloppy, {10, 10});
    SavePicture(form, "DlgCreate");
    Click(form, "cmdCreate");
    SaveDarkPicture(form, "DlgCreate");
}

/// A signing program that refuses, and records its input.
class RefusingPrograms : public ProgramRunner {
public:
    bool IsInstalled(const Text&) const override { return true; }
    ProgramOutcome Run(const ProgramOrder& order, const std::function<void()>&) override
    {
        passwords.push_back(order.input);
        return {.exitCode = 255, .output = "Failed (Wrong password?)\n"};
    }
    std::unique_ptr<WorkFolder> MakeWorkFolder() override
    {
        class Folder : public WorkFolder {
        public:
            const Text& Path() const override { return path_; }

        private:
            Text path_ = "C:\\TEMP";
        };
        return std::make_unique<Folder>();
    }

    std::vector<Text> passwords;
};

TEST_F(DlgCreateTest, AsksForThePasswordOfTheKeyThatSigns)
{
    Open().project.Sign = {.SignSelfExtractFile = kOn, .SignSPCFilename = "C:\\firma.pfx"};
    machine.files.Put("C:\\firma.pfx", "key");
    RefusingPrograms programs;
    session->programs = &programs;
    DlgCreate form(*session, nullptr);
    ShowActive(form);
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Lösenord");
        Type(dialog, "tInput", "hemligt");
        Click(dialog, "cmdOK");
    });
    Click(form, "cmdCreate");
    EXPECT_EQ(programs.passwords, std::vector<Text>{"hemligt"});
    const std::vector<Text> lines = Lines(form);
    EXPECT_THAT(lines, testing::Contains("Fel! Kan ej signera SETUP.EXE!"));
    EXPECT_EQ(lines.back(), "'SETUP.EXE' kan ej signeras: Lösenordet till nyckeln stämmer inte, "
                            "eller så är nyckelfilen skadad.");
    EXPECT_FALSE(machine.files.FileExists("C:\\Ut\\SETUP.EXE"));
}

class ProbeWindow : public MainWindow {
public:
    void ShowProject() override {}
    void ShowTitle() override {}
    void ShowRecentFiles() override {}
    void ShowSettings() override {}
    void ShowTab(Tab) override {}
    void SelectTab(Tab) override {}
    Tab SelectedTab() const override { return Tab::Files; }
    void ShowFileList(const std::vector<std::size_t>& selectedRows) override
    {
        shown.push_back(selectedRows);
    }
    std::vector<std::size_t> SelectedRows() const override { return {0}; }
    void UpdateStatusBar() override {}

    std::vector<std::vector<std::size_t>> shown;
};

TEST_F(DlgCreateTest, TheCommandShowsTheListAnewBehindARun)
{
    Open();
    ProbeWindow window;
    OnNextDialog([](QDialog& dialog) { Click(dialog, "cmdClose"); });
    ShowCreate(*session, window, nullptr, {}, {});
    EXPECT_TRUE(window.shown.empty());
    OnNextDialog([](QDialog& dialog) {
        Click(dialog, "cmdCreate");
        Click(dialog, "cmdClose");
    });
    ShowCreate(*session, window, nullptr, {}, {});
    EXPECT_EQ(window.shown, (std::vector<std::vector<std::size_t>>{{0}}));
}

} // namespace
} // namespace quillon::test
